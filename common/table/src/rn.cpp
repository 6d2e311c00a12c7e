#include "orv/table/rn.h"

#include "internal/RowNodeObject.h"
#include "internal/RowNodeReader.h"
#include "internal/RowNodeWriter.h"
#include "internal/Writable.h"

namespace orv::rn {

namespace {

void setOk(bool *ok, bool value)
{
    if (ok)
        *ok = value;
}

} // namespace

bool parse(const QByteArray &bytes, RowNode *node)
{
    RowNode table;
    if (!node || !Internal::RowNodeReader(bytes).read(&table))
        return false;
    *node = std::move(table);
    return true;
}

QByteArray serialize(const RowNode *node, bool *ok)
{
    Internal::RowNodeWriter writer;
    const bool written = node && writer.write(*node);
    setOk(ok, written);
    return written ? writer.takeText() : QByteArray();
}

bool canSerialize(const QVariant &entry)
{
    return Internal::isWritable(entry, Internal::kLevelsOfRowEntries);
}

bool canSerialize(const RowNode &node)
{
    return Internal::isWritable(node, kMaxNesting);
}

bool fromObject(const QJsonObject &object, RowNode *node)
{
    RowNode table;
    if (!node || !Internal::nodeFromObject(object, &table))
        return false;
    *node = std::move(table);
    return true;
}

QJsonObject toObject(const RowNode *node, bool *ok)
{
    QJsonObject object;
    const bool written = node && Internal::nodeToObject(*node, &object);
    setOk(ok, written);
    return written ? object : QJsonObject();
}

} // namespace orv::rn
