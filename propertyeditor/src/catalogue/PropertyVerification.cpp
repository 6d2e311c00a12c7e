#include "orv/propertyeditor/PropertyVerification.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyVerificationFunctions.h>

#include <QRegularExpression>

#include <array>

namespace orv {

namespace {

namespace Builtin = PropertyVerificationFunctions;
using BuiltinFunction = bool (*)(PropertyId, const QVariant &, PropertyEditorContent::ContentMode,
                                 QList<QString> *, QList<QString> *);

template<typename What>
struct Keyword
{
    QLatin1String name;
    QLatin1String alias;
    What what;
};

constexpr QLatin1String kNoAlias;

constexpr std::array kBuiltins = {
    Keyword<BuiltinFunction>{QLatin1String("local-url"), kNoAlias, &Builtin::verifyLocalUrl},
    Keyword<BuiltinFunction>{QLatin1String("local-or-talvane-url"), kNoAlias,
                             &Builtin::verifyLocalOrTalvaneUrl},
    Keyword<BuiltinFunction>{QLatin1String("modifications"), kNoAlias, &Builtin::verifyModifications},
    Keyword<BuiltinFunction>{QLatin1String("glycans"), kNoAlias, &Builtin::verifyGlycans},
    Keyword<BuiltinFunction>{QLatin1String("isotope"), kNoAlias, &Builtin::verifyIsotope},
    Keyword<BuiltinFunction>{QLatin1String("digestion_valid"), kNoAlias, &Builtin::verifyDigestion},
};

template<typename Table>
auto findKeyword(const Table &table, const QString &keyword)
{
    return std::ranges::find_if(table, [&keyword](const auto &row) {
        return keyword == row.name || (!row.alias.isEmpty() && keyword == row.alias);
    });
}

bool isOneOf(QPartialOrdering ordering, const std::array<QPartialOrdering, 2> &allowed)
{
    return ordering == allowed[0] || ordering == allowed[1];
}

const std::array<QPartialOrdering, 2> &greaterOrEquivalent()
{
    static const std::array allowed = {QPartialOrdering::Greater, QPartialOrdering::Equivalent};
    return allowed;
}

const std::array<QPartialOrdering, 2> &lessOrEquivalent()
{
    static const std::array allowed = {QPartialOrdering::Less, QPartialOrdering::Equivalent};
    return allowed;
}

bool isGreater(const QVariant &value, const QVariant &limit)
{
    return QVariant::compare(value, limit) == QPartialOrdering::Greater;
}

bool isGreaterOrEqual(const QVariant &value, const QVariant &limit)
{
    return isOneOf(QVariant::compare(value, limit), greaterOrEquivalent());
}

bool isLess(const QVariant &value, const QVariant &limit)
{
    return QVariant::compare(value, limit) == QPartialOrdering::Less;
}

bool isLessOrEqual(const QVariant &value, const QVariant &limit)
{
    return isOneOf(QVariant::compare(value, limit), lessOrEquivalent());
}

bool isEqual(const QVariant &value, const QVariant &other)
{
    return value == other;
}

bool isNotEqual(const QVariant &value, const QVariant &other)
{
    return value != other;
}

bool isFilledList(const QVariant &value, const QVariant &)
{
    return !value.toList().isEmpty();
}

bool containsText(const QString &value, const QString &text)
{
    return value.contains(text);
}

bool lacksText(const QString &value, const QString &text)
{
    return !value.contains(text);
}

bool startsWithText(const QString &value, const QString &text)
{
    return value.startsWith(text);
}

bool endsWithText(const QString &value, const QString &text)
{
    return value.endsWith(text);
}

bool isEmptyText(const QString &value, const QString &)
{
    return value.isEmpty();
}

bool isFilledText(const QString &value, const QString &)
{
    return !value.isEmpty();
}

// Some templates have no place for the parameter.
QString filledIn(const QString &message, const QString &caption, const QString &parameter)
{
    return message.contains(QLatin1String("%2")) ? message.arg(caption, parameter) : message.arg(caption);
}

} // namespace

struct PropertyVerification::CompareRule
{
    ValuePredicate predicate;
    const char *message;
};

struct PropertyVerification::StringRule
{
    StringPredicate predicate;
    const char *message;
};

VerificationFunction PropertyVerification::constructVerificationFunction(const QString &keyword,
                                                                         const QString &parameter)
{
    static constexpr std::array kCompareRules = {
        Keyword<CompareRule>{QLatin1String("greater-than"),
                             QLatin1String(">"),
                             {&isGreater, QT_TR_NOOP("The value of \"%1\" must be greater than %2")}},
        Keyword<CompareRule>{
            QLatin1String("greater-or-equal-to"),
            QLatin1String(">="),
            {&isGreaterOrEqual, QT_TR_NOOP("The value of \"%1\" must be greater or equal to %2")}},
        Keyword<CompareRule>{QLatin1String("less-than"),
                             QLatin1String("<"),
                             {&isLess, QT_TR_NOOP("The value of \"%1\" must be less than %2")}},
        Keyword<CompareRule>{QLatin1String("less-or-equal-to"),
                             QLatin1String("<="),
                             {&isLessOrEqual, QT_TR_NOOP("The value of \"%1\" must be less or equal to %2")}},
        Keyword<CompareRule>{QLatin1String("equal-to"),
                             QLatin1String("="),
                             {&isEqual, QT_TR_NOOP("The value of \"%1\" must be equal to %2")}},
        Keyword<CompareRule>{QLatin1String("not-equal-to"),
                             QLatin1String("!="),
                             {&isNotEqual, QT_TR_NOOP("The value of \"%1\" must not be equal to %2")}},
        Keyword<CompareRule>{QLatin1String("list-not-empty"),
                             kNoAlias,
                             {&isFilledList, QT_TR_NOOP("The value of \"%1\" must not be empty")}},
    };
    static constexpr std::array kStringRules = {
        Keyword<StringRule>{QLatin1String("contains"),
                            QLatin1String("~"),
                            {&containsText, QT_TR_NOOP("The value of \"%1\" must contain \"%2\"")}},
        Keyword<StringRule>{QLatin1String("not-contains"),
                            QLatin1String("!~"),
                            {&lacksText, QT_TR_NOOP("The value of \"%1\" must not contain \"%2\"")}},
        Keyword<StringRule>{QLatin1String("starts-with"),
                            kNoAlias,
                            {&startsWithText, QT_TR_NOOP("The value of \"%1\" must start with \"%2\"")}},
        Keyword<StringRule>{QLatin1String("ends-with"),
                            kNoAlias,
                            {&endsWithText, QT_TR_NOOP("The value of \"%1\" must end with \"%2\"")}},
        Keyword<StringRule>{QLatin1String("empty"),
                            kNoAlias,
                            {&isEmptyText, QT_TR_NOOP("The value of \"%1\" must be empty")}},
        Keyword<StringRule>{QLatin1String("not-empty"),
                            kNoAlias,
                            {&isFilledText, QT_TR_NOOP("The value of \"%1\" must not be empty")}},
    };

    const QString name = keyword.trimmed().toLower();
    if (name.isEmpty())
        return {};
    if (name == QLatin1String("range"))
        return constructRangeVerificationFunction(parameter);
    if (const auto *row = findKeyword(kBuiltins, name); row != kBuiltins.end())
        return row->what;
    if (const auto *row = findKeyword(kCompareRules, name); row != kCompareRules.end())
        return constructCompareVerificationFunction(parameter, row->what.predicate, row->what.message);
    if (const auto *row = findKeyword(kStringRules, name); row != kStringRules.end())
        return constructStringVerificationFunction(parameter, row->what.predicate, row->what.message);
    qCWarning(propertyEditorLog) << "Unhandled verification function" << keyword;
    return {};
}

VerificationFunction PropertyVerification::constructCompareVerificationFunction(const QString &parameter,
                                                                                ValuePredicate predicate,
                                                                                const char *message)
{
    return [=](PropertyId id, const QVariant &value, PropertyEditorContent::ContentMode,
               QList<QString> *errors, QList<QString> *warnings) {
        return verifyValue(id, value, valueInStringToVariant(id, parameter), predicate, tr(message), errors,
                           warnings);
    };
}

VerificationFunction PropertyVerification::constructStringVerificationFunction(const QString &parameter,
                                                                               StringPredicate predicate,
                                                                               const char *message)
{
    return [=](PropertyId id, const QVariant &value, PropertyEditorContent::ContentMode,
               QList<QString> *errors, QList<QString> *warnings) {
        return verifyStringValues(id, value, parameter, predicate, tr(message), errors, warnings);
    };
}

std::optional<PropertyVerification::Range> PropertyVerification::parseRange(const QString &parameter)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QStringLiteral("([\\[\\(])\\s*([-0-9.]+)\\s*;\\s*([-0-9.]+)\\s*([\\]\\)])")));
    const QRegularExpressionMatch match = pattern.match(parameter.trimmed());
    if (!match.hasMatch())
        return {};
    qCDebug(propertyEditorLog) << match.capturedTexts();
    return Range{match.captured(2), match.captured(3), match.captured(1) == QLatin1String("["),
                 match.captured(4) == QLatin1String("]")};
}

VerificationFunction PropertyVerification::constructRangeVerificationFunction(const QString &parameter)
{
    const std::optional<Range> range = parseRange(parameter);
    if (!range) {
        qCWarning(propertyEditorLog) << "Invalid range" << parameter;
        return {};
    }
    return [range = *range, text = parameter.trimmed()](PropertyId id, const QVariant &value,
                                                        PropertyEditorContent::ContentMode,
                                                        QList<QString> *errors, QList<QString> *warnings) {
        const QString message = tr("The value of \"%2\" must be in range %1").arg(text);
        return verifyValueInRange(id, value, valueInStringToVariant(id, range.low),
                                  valueInStringToVariant(id, range.high), range.lowInclusive,
                                  range.highInclusive, message, errors, warnings);
    };
}

QVariant PropertyVerification::valueInStringToVariant(PropertyId id, const QString &text)
{
    const QString typeName = PropertiesNames::valueTypeNameOfPropertyType(id);
    const QString trimmed = text.trimmed();
    if (typeName == QLatin1String("bool"))
        return trimmed == QLatin1String("1") || trimmed == QLatin1String("true");
    if (typeName == QLatin1String("int"))
        return trimmed.toInt();
    if (typeName == QLatin1String("double"))
        return trimmed.toDouble();
    return text;
}

bool PropertyVerification::verifyValue(PropertyId id, const QVariant &value, const QVariant &parameter,
                                       ValuePredicate predicate, const QString &message,
                                       QList<QString> *errors, QList<QString> *warnings)
{
    Q_UNUSED(warnings)
    if (predicate(value, parameter))
        return true;
    errors->append(filledIn(message, PropertiesNames::displayNameForType(id), parameter.toString()));
    return false;
}

bool PropertyVerification::verifyStringValues(PropertyId id, const QVariant &value, const QString &parameter,
                                              StringPredicate predicate, const QString &message,
                                              QList<QString> *errors, QList<QString> *warnings)
{
    Q_UNUSED(warnings)
    if (predicate(value.toString(), parameter))
        return true;
    errors->append(filledIn(message, PropertiesNames::displayNameForType(id), parameter));
    return false;
}

bool PropertyVerification::verifyValueInRange(PropertyId id, const QVariant &value, const QVariant &low,
                                              const QVariant &high, bool lowInclusive, bool highInclusive,
                                              const QString &message, QList<QString> *errors,
                                              QList<QString> *warnings)
{
    Q_UNUSED(warnings)
    const bool aboveLow = lowInclusive ? isGreaterOrEqual(value, low) : isGreater(value, low);
    if (aboveLow && (highInclusive ? isLessOrEqual(value, high) : isLess(value, high)))
        return true;
    errors->append(message.arg(PropertiesNames::displayNameForType(id)));
    return false;
}

} // namespace orv
