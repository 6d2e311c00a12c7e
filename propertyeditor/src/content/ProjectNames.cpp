#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

namespace orv::PropertyEditorJsonUtils {

bool endsWithExpectedExtension(const QString &extension, const QList<BaseItemType> &documents)
{
    return PropertyEditorUtils::resultProjectExtensionsFromWorkflow(documents).contains(extension,
                                                                                        Qt::CaseInsensitive);
}

QString adjustProjectName(const QString &name, const QList<BaseItemType> &documents)
{
    QStringList parts = name.split(QLatin1Char('.'));
    if (!endsWithExpectedExtension(parts.constLast(), documents))
        return name;
    parts.removeLast();
    return parts.join(QLatin1Char('.'));
}

} // namespace orv::PropertyEditorJsonUtils
