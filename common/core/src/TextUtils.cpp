#include "orv/core/TextUtils.h"

#include <QCoreApplication>

namespace orv::TextUtils {

namespace {

struct TextUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(TextUtils)
};

QString headed(const QString &heading, const QStringList &texts)
{
    if (texts.isEmpty())
        return {};
    const QString list = stringListToHtmlList(texts);
    return heading.isEmpty() ? list : QStringLiteral("<b>%1</b>").arg(heading.toHtmlEscaped()) + list;
}

} // namespace

QString stringListToHtmlList(const QStringList &texts)
{
    if (texts.isEmpty())
        return {};
    QString html = QStringLiteral("<ul>");
    for (const QString &text : texts) {
        QString item = text.toHtmlEscaped();
        item.replace(QLatin1Char('\n'), QLatin1String("<br>"));
        html += QLatin1String("<li>") + item + QLatin1String("</li>");
    }
    return html + QLatin1String("</ul>");
}

QString errorsListToHtmlList(const QStringList &errors)
{
    return headed(TextUtilsTr::tr("Errors: %1").arg(errors.size()), errors);
}

QString warningsListToHtmlList(const QStringList &warnings)
{
    return headed(TextUtilsTr::tr("Warnings: %1").arg(warnings.size()), warnings);
}

QString errorsListToHtmlList(const QStringList &errors, const QString &heading)
{
    return headed(heading, errors);
}

QString warningsListToHtmlList(const QStringList &warnings, const QString &heading)
{
    return headed(heading, warnings);
}

} // namespace orv::TextUtils
