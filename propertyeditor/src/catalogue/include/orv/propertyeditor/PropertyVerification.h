#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/VerificationFunction.h>

#include <QCoreApplication>
#include <QString>
#include <QVariant>

#include <optional>

namespace orv {

/// Makes the rules of the catalogue out of a keyword and a parameter text. Safe on any thread.
class ORV_WORKFLOW_EXPORT PropertyVerification
{
    Q_DECLARE_TR_FUNCTIONS(PropertyVerification)

public:
    /// The rule of \a keyword, blanks around it and case ignored, such as "range" with "[0;100)". Empty for
    /// an empty keyword and, with a warning in the log, for an unknown one or a range that can't be read.
    [[nodiscard]] static VerificationFunction constructVerificationFunction(const QString &keyword,
                                                                            const QString &parameter);

    /// The parameter of a range rule; the bounds are numbers as texts.
    struct Range
    {
        QString low;
        QString high;
        bool lowInclusive = true;
        bool highInclusive = true;
    };

    /// The range that \a parameter stands for, such as "[0;100)"; nothing if it can't be read.
    [[nodiscard]] static std::optional<Range> parseRange(const QString &parameter);

private:
    using ValuePredicate = bool (*)(const QVariant &value, const QVariant &parameter);
    using StringPredicate = bool (*)(const QString &value, const QString &parameter);

    struct CompareRule;
    struct StringRule;

    // The catalogue keeps its rules: they translate their texts when they speak.
    static VerificationFunction constructCompareVerificationFunction(const QString &parameter,
                                                                     ValuePredicate predicate,
                                                                     const char *message);
    static VerificationFunction constructStringVerificationFunction(const QString &parameter,
                                                                    StringPredicate predicate,
                                                                    const char *message);
    static VerificationFunction constructRangeVerificationFunction(const QString &parameter);

    /// \a text as a value of the property's type: bool, int and double; else the text.
    static QVariant valueInStringToVariant(PropertyId id, const QString &text);

    static bool verifyValue(PropertyId id, const QVariant &value, const QVariant &parameter,
                            ValuePredicate predicate, const QString &message, QList<QString> *errors,
                            QList<QString> *warnings);
    static bool verifyStringValues(PropertyId id, const QVariant &value, const QString &parameter,
                                   StringPredicate predicate, const QString &message, QList<QString> *errors,
                                   QList<QString> *warnings);
    static bool verifyValueInRange(PropertyId id, const QVariant &value, const QVariant &low,
                                   const QVariant &high, bool lowInclusive, bool highInclusive,
                                   const QString &message, QList<QString> *errors, QList<QString> *warnings);
};

} // namespace orv
