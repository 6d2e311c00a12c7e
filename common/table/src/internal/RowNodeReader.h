#pragma once

#include "JsonCursor.h"
#include "TextCache.h"

#include <orv/table/RowNode.h>

#include <vector>

namespace orv::Internal {

/// Reads the text of a node straight into the node: no document is made on the way.
class RowNodeReader
{
public:
    explicit RowNodeReader(QByteArrayView json);

    /// False when the text isn't that of a node; \a node is then in no state to be used.
    [[nodiscard]] bool read(RowNode *node);

private:
    // All of these stand at the first byte of what they read, and answer false for what isn't well-formed.
    [[nodiscard]] bool readNode(RowNode *node);
    [[nodiscard]] bool readMember(RowNode *node, bool *hasData, bool *hasChildren);
    [[nodiscard]] bool readChildren(RowNode *node);
    [[nodiscard]] bool readCells(QVariantList *cells);
    /// Puts the value on top of m_stack.
    [[nodiscard]] bool readCell();
    [[nodiscard]] bool readText();
    [[nodiscard]] bool readObject();
    [[nodiscard]] bool readKey(QString *key);
    [[nodiscard]] bool skipValue();
    [[nodiscard]] bool skipContainer(bool isObject);

    [[nodiscard]] bool enter();
    void leave() { --m_depth; }
    [[nodiscard]] bool push(QVariant value);

    JsonCursor m_cursor;
    int m_depth = 0;
    /// Entries of the lists that are open, so that each list is made when its size is known.
    std::vector<QVariant> m_stack;
    TextCache m_texts;
};

} // namespace orv::Internal
