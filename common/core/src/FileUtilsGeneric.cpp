#include "orv/core/FileUtilsGeneric.h"

#include <orv/core/FileUtils.h>
#include <orv/core/JsonUtils.h>

namespace orv::FileUtilsGeneric {

namespace {

Result<QJsonObject> readJsonObject(const QString &path)
{
    Result<QByteArray> bytes = FileUtils::readFile(path);
    if (bytes.hasError())
        return bytes.ecatch();
    return JsonUtils::objectFromJson(*bytes);
}

} // namespace

bool readJsonObjectFromFile(const QString &path, QJsonObject *object, QStringList *errors)
{
    Result<QJsonObject> read = readJsonObject(path);
    if (read.hasError()) {
        if (errors)
            *errors << read.error().errorMessages() << read.error().details();
        return false;
    }
    if (object)
        *object = *read;
    return true;
}

} // namespace orv::FileUtilsGeneric
