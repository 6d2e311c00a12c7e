#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QList>
#include <QString>

namespace orv {

/// Which monosaccharides a glycan has, and how many of each: "HexNAc(4)Hex(3)Fuc(1)". A plain value.
class ORV_WORKFLOW_EXPORT GlycanComposition
{
public:
    static constexpr int kMaximumCount = 1000;

    struct Part
    {
        QString moiety;
        int count = 0;

        bool operator==(const Part &) const = default;
    };

    /// Names are letters and digits that begin with a letter; counts lie between 0 and 1000; blanks between
    /// parts don't count. InvalidContent with the place as detail for any other text, for the empty one, and
    /// for a name that stands twice.
    [[nodiscard]] static Result<GlycanComposition> parse(const QString &text);
    /// Without blanks; parse reads it back.
    [[nodiscard]] QString toString() const;

    /// In the order of the text.
    [[nodiscard]] const QList<Part> &parts() const { return m_parts; }

    bool operator==(const GlycanComposition &) const = default;

private:
    QList<Part> m_parts;
};

} // namespace orv
