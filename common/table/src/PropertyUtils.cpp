#include "orv/table/PropertyUtils.h"

namespace orv::PropertyUtils {

QMetaType::Type defaultType()
{
    return QMetaType::QString;
}

QMetaType::Type qtTypeForName(const QString &name, QMetaType::Type otherwise)
{
    struct Row
    {
        QLatin1String name;
        QMetaType::Type type;
    };
    static constexpr Row rows[] = {
        {QLatin1String("bool"), QMetaType::Bool},      {QLatin1String("double"), QMetaType::Double},
        {QLatin1String("int"), QMetaType::Int},        {QLatin1String("number"), QMetaType::Double},
        {QLatin1String("string"), QMetaType::QString}, {QLatin1String("text"), QMetaType::QString},
    };
    for (const Row &row : rows) {
        if (name.compare(row.name, Qt::CaseInsensitive) == 0)
            return row.type;
    }
    return otherwise;
}

} // namespace orv::PropertyUtils
