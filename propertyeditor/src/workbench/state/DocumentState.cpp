#include "orv/propertyeditor/workbench/DocumentState.h"

#include <QSet>

#include <algorithm>

namespace orv {

namespace {

StateChange::TextDifference textDifference(const QByteArray &before, const QByteArray &after)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    const auto head = std::mismatch(before.cbegin(), before.cbegin() + shorter, after.cbegin());
    const qsizetype offset = head.first - before.cbegin();
    const auto tail = std::mismatch(before.crbegin(), before.crbegin() + (shorter - offset), after.crbegin());
    const qsizetype same = tail.first - before.crbegin();
    return {offset, before.mid(offset, before.size() - offset - same),
            after.mid(offset, after.size() - offset - same)};
}

std::variant<JsonDifference, StateChange::TextDifference> differenceOf(const StateCell &before,
                                                                       const StateCell &after)
{
    if (before.isObject() && after.isObject())
        return JsonDifference::between(before.object(), after.object());
    return textDifference(before, after);
}

StateCell appliedTo(const StateCell &cell, const JsonDifference &difference, StateChange::Direction direction)
{
    return StateCell(direction == StateChange::Direction::Forth ? difference.forth(cell.object())
                                                                : difference.back(cell.object()));
}

StateCell appliedTo(const StateCell &cell, const StateChange::TextDifference &difference,
                    StateChange::Direction direction)
{
    const bool isForth = direction == StateChange::Direction::Forth;
    const QByteArray &old = isForth ? difference.before : difference.after;
    QByteArray text = cell.json();
    return text.replace(difference.offset, old.size(), isForth ? difference.after : difference.before);
}

qsizetype bytesOf(const JsonDifference &difference)
{
    return difference.heldBytes();
}

qsizetype bytesOf(const StateChange::TextDifference &difference)
{
    return difference.before.size() + difference.after.size();
}

qsizetype bytesOf(const QList<DocumentState::Tab> &tabs, QSet<const char *> *counted)
{
    qsizetype bytes = 0;
    for (const DocumentState::Tab &tab : tabs) {
        for (const QByteArray &cell : tab.cells) {
            if (!counted->contains(cell.constData())) {
                counted->insert(cell.constData());
                bytes += cell.size();
            }
        }
    }
    return bytes;
}

} // namespace

PropertyEditorContent::Tab DocumentState::Tab::content() const
{
    VariantItems items;
    items.reserve(cells.size());
    for (const StateCell &cell : cells)
        items.append(cell.toVariant());
    return {title, {columns, items}};
}

bool DocumentState::Tab::isShapedLike(const Tab &other) const
{
    return title == other.title && columns == other.columns && cells.size() == other.cells.size();
}

bool DocumentState::Tab::operator==(const Tab &other) const
{
    return isShapedLike(other) && cells == other.cells;
}

PropertyEditorContent DocumentState::content(const QJsonObject &extendedMetadata) const
{
    PropertyEditorContent::Tabs contents;
    contents.reserve(tabs.size());
    for (const Tab &tab : tabs)
        contents.append(tab.content());
    return {contents, metadata, extendedMetadata};
}

StateChange StateChange::between(const DocumentState &before, const DocumentState &after)
{
    StateChange change;
    change.findTabs(before, after);
    change.findCells(before, after);
    if (before.metadata != after.metadata)
        change.m_metadata.emplace(before.metadata, after.metadata);
    return change;
}

void StateChange::findTabs(const DocumentState &before, const DocumentState &after)
{
    const auto isAlike = [](const DocumentState::Tab &a, const DocumentState::Tab &b) {
        return a.isShapedLike(b);
    };
    const qsizetype shorter = std::min(before.tabs.size(), after.tabs.size());
    const auto head =
        std::mismatch(before.tabs.cbegin(), before.tabs.cbegin() + shorter, after.tabs.cbegin(), isAlike);
    const qsizetype first = head.first - before.tabs.cbegin();
    const auto tail = std::mismatch(before.tabs.crbegin(), before.tabs.crbegin() + (shorter - first),
                                    after.tabs.crbegin(), isAlike);
    const qsizetype same = tail.first - before.tabs.crbegin();
    m_firstTab = int(first);
    m_before = before.tabs.mid(first, before.tabs.size() - first - same);
    m_after = after.tabs.mid(first, after.tabs.size() - first - same);
}

void StateChange::findCells(const DocumentState &before, const DocumentState &after)
{
    for (int tab = 0; tab < after.tabs.size(); ++tab) {
        const bool isBehind = tab >= m_firstTab + m_after.size();
        if (tab >= m_firstTab && !isBehind)
            continue;
        const qsizetype earlier = isBehind ? tab - m_after.size() + m_before.size() : tab;
        const QList<StateCell> &old = before.tabs.at(earlier).cells;
        const QList<StateCell> &now = after.tabs.at(tab).cells;
        for (int column = 0; column < now.size(); ++column) {
            if (old.at(column) == now.at(column))
                continue;
            m_cells.append({tab, column, differenceOf(old.at(column), now.at(column))});
        }
    }
}

bool StateChange::isEmpty() const
{
    return !hasOtherTabs() && m_cells.isEmpty() && !m_metadata;
}

DocumentState StateChange::applied(DocumentState state, Direction direction) const
{
    const bool isForth = direction == Direction::Forth;
    const auto exchangeTabs = [&] {
        const QList<DocumentState::Tab> &old = isForth ? m_before : m_after;
        const QList<DocumentState::Tab> &next = isForth ? m_after : m_before;
        state.tabs = state.tabs.first(m_firstTab) + next + state.tabs.mid(m_firstTab + old.size());
    };
    if (isForth && hasOtherTabs())
        exchangeTabs();
    for (const CellChange &change : m_cells) {
        StateCell &cell = state.tabs[change.tab].cells[change.column];
        cell = std::visit([&](const auto &difference) { return appliedTo(cell, difference, direction); },
                          change.difference);
    }
    if (!isForth && hasOtherTabs())
        exchangeTabs();
    if (m_metadata)
        state.metadata = isForth ? m_metadata->second : m_metadata->first;
    return state;
}

void StateChange::followMetadata(const QJsonObject &before, const QJsonObject &after)
{
    if (!m_metadata)
        return;
    const QStringList keys = before.keys() + after.keys();
    for (const QString &key : keys) {
        if (before.value(key) == after.value(key))
            continue;
        // An undefined value takes the member away.
        m_metadata->first.insert(key, after.value(key));
        m_metadata->second.insert(key, after.value(key));
    }
}

qsizetype StateChange::heldBytes() const
{
    constexpr qsizetype kEach = 200;
    QSet<const char *> counted;
    qsizetype bytes = kEach + bytesOf(m_before, &counted) + bytesOf(m_after, &counted);
    for (const CellChange &change : m_cells)
        bytes +=
            kEach + std::visit([](const auto &difference) { return bytesOf(difference); }, change.difference);
    return bytes;
}

} // namespace orv
