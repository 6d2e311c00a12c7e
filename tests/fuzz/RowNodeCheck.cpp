#include "FormChecks.h"
#include "Survival.h"

#include <orv/table/rn.h>

#include <QJsonDocument>
#include <QJsonObject>

using namespace orv;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

/// A text that needs a typed form to be written nests deeper than where it was read.
bool isNearTheBound(const QByteArray &json)
{
    return json.count('[') + json.count('{') > rn::kMaxNesting / 4;
}

/// The text tells the type of each value, so that equal texts are equal nodes.
QString checkReadBack(const RowNode &node, const QByteArray &text)
{
    RowNode readBack;
    if (!rn::parse(text, &readBack) || rn::serialize(&readBack) != text)
        return u"text reads back as another node"_s;
    bool ok = false;
    const QJsonObject object = rn::toObject(&node, &ok);
    if (!ok || QJsonDocument::fromJson(text).object() != object)
        return u"text and object differ"_s;
    if (!rn::fromObject(object, &readBack) || rn::serialize(&readBack) != text)
        return u"the object reads back as another node"_s;
    if (!rn::parse(QJsonDocument(object).toJson(), &readBack) || rn::serialize(&readBack) != text)
        return u"another writer's text reads back as another node"_s;
    return {};
}

QString checkWritten(const RowNode &node, const QByteArray &source)
{
    bool ok = false;
    const QByteArray text = rn::serialize(&node, &ok);
    if (ok == text.isEmpty())
        return u"text and flag disagree"_s;
    if (!ok)
        return isNearTheBound(source) ? QString() : u"what was read can't be written"_s;
    // JSON within JSON is kept by QJsonDocument, with its faults.
    return losesMarks(source) && source.contains("json") ? QString() : checkReadBack(node, text);
}

} // namespace

QString checkRowNode(const QByteArray &bytes)
{
    RowNode node({u"kept"_s});
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!rn::parse(bytes, &node)) {
        if (!(node == RowNode({u"kept"_s})))
            return u"a refused text left something behind"_s;
        // A parsed document may still be read, since repeated keys show in the text alone.
        RowNode fromObject;
        if (!document.isObject() || !rn::fromObject(document.object(), &fromObject))
            return {};
        return checkWritten(fromObject, bytes);
    }
    const QByteArray text = rn::serialize(&node);
    const QString wrong = checkWritten(node, bytes);
    if (!wrong.isEmpty() || text.isEmpty() || losesMarks(bytes))
        return wrong;
    RowNode fromObject;
    if (!document.isObject() || !rn::fromObject(document.object(), &fromObject))
        return u"the parsed document is refused, though its text isn't"_s;
    return rn::serialize(&fromObject) == text ? QString() : u"the parsed document reads as another node"_s;
}

} // namespace FormChecks
