#pragma once

#include "JsonCursor.h"

#include <array>
#include <cstring>
#include <memory>

namespace orv::Internal {

/// Texts read lately. Columns of a table repeat few texts ("Trypsin", "ppm"): those are made once and shared,
/// which saves most of their memory. The keys point into the text that is read.
class TextCache
{
public:
    TextCache()
        : m_slots(std::make_unique<Slots>())
    {}

    /// A text that is \a raw again, or null.
    [[nodiscard]] const QVariant *find(const RawText &raw) const
    {
        const Slot &slot = (*m_slots)[slotOf(raw)];
        const bool isSame =
            slot.size == raw.size && slot.begin && std::memcmp(slot.begin, raw.begin, size_t(raw.size)) == 0;
        return isSame ? &slot.value : nullptr;
    }

    void insert(const RawText &raw, const QVariant &value)
    {
        (*m_slots)[slotOf(raw)] = {raw.begin, raw.size, value};
    }

private:
    static constexpr size_t kSlotBits = 10;

    struct Slot
    {
        const char *begin = nullptr;
        qsizetype size = 0;
        QVariant value;
    };
    using Slots = std::array<Slot, size_t(1) << kSlotBits>;

    /// By length and the first and last bytes: a text that only differs between is read a little slower.
    static size_t slotOf(const RawText &raw)
    {
        constexpr quint64 kMix = 0x9E3779B97F4A7C15;
        quint64 head = 0;
        quint64 tail = 0;
        const size_t part = std::min(size_t(raw.size), sizeof head);
        std::memcpy(&head, raw.begin, part);
        std::memcpy(&tail, raw.begin + raw.size - part, part);
        const quint64 mixed = (head * kMix ^ (tail + quint64(raw.size))) * kMix;
        return size_t(mixed >> (64 - kSlotBits));
    }

    std::unique_ptr<Slots> m_slots;
};

} // namespace orv::Internal
