#include "orv/propertyeditor/editors/ModificationsEditorObject.h"

#include "ValueText.h"

#include <KProperty.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/GlycansDialog.h>
#include <orv/widgets/ModificationsDialog.h>
#include <orv/widgets/PeakFilterDialog.h>

#include <QHash>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

struct TextOfSearch
{
    QLatin1String key;
    QString (*edit)(const QString &text, QWidget *parent, bool *ok);
};

using Mode = ModificationsEditorObject::Mode;

const TextOfSearch &textOfSearch(Mode mode)
{
    static const QHash<Mode, TextOfSearch> table = {
        {Mode::Modifications, {MODS_KEY, &ModificationsDialog::getModificationsFromUser}},
        {Mode::Glycans, {GLYCANS_KEY, &GlycansDialog::getGlycansFromUser}},
        {Mode::PeakFilter, {PEAK_FILTER_KEY, &PeakFilterDialog::getPeakFilterFromUser}},
    };
    return *table.constFind(mode);
}

/// Glycans are read with each pair of backslashes as one. The one that would lose some by that is stored with
/// all of them doubled.
QString storedGlycans(const QString &text)
{
    const auto read = [](const QString &stored) {
        return PropertyEditorUtils::resolveGlycansStringsFromWflw(stored, nullptr);
    };
    QString doubled = text;
    return read(text) == text ? text : doubled.replace(u'\\', QLatin1String("\\\\"));
}

} // namespace

QString ModificationsEditorObject::toString(const QJsonObject &value) const
{
    return ValueText::textUnder(textOfSearch(m_mode).key, value);
}

QJsonObject ModificationsEditorObject::fromString(const QString &text) const
{
    return {{textOfSearch(m_mode).key, text}};
}

bool ModificationsEditorObject::handleEditObject(QJsonObject *value, const KProperty &property,
                                                 QWidget *parent) const
{
    const auto &[key, edit] = textOfSearch(m_mode);
    QString text = value->value(key).toString();
    if (m_mode == Mode::Glycans)
        text = PropertyEditorUtils::resolveGlycansStringsFromWflw(text, &property);
    bool ok = false;
    const QString edited = edit(text, CoreMainWindow::windowFor(parent), &ok);
    // What nobody edited keeps its relative paths and whatever else stands in the value.
    if (ok && edited != text)
        *value = fromString(m_mode == Mode::Glycans ? storedGlycans(edited) : edited);
    return ok;
}

} // namespace orv
