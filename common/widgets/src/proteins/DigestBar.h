#pragma once

#include <orv/chemistry/ProteinDigestionItem.h>

#include <QWidget>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QComboBox)
QT_FORWARD_DECLARE_CLASS(QLabel)

namespace orv {

class UnitField;

/// The enzyme by which proteins are digested and the peptides that can be seen.
class DigestBar : public QWidget
{
    Q_OBJECT

public:
    explicit DigestBar(QWidget *parent = nullptr);

    /// Nothing while the text is no rule.
    [[nodiscard]] std::optional<ProteinDigestionItem> rule() const;
    [[nodiscard]] DigestionLimits limits() const;

Q_SIGNALS:
    void edited();

private:
    void check();

    QComboBox *m_rule = nullptr;
    UnitField *m_missed = nullptr;
    UnitField *m_shortest = nullptr;
    UnitField *m_longest = nullptr;
    QLabel *m_problem = nullptr;
};

} // namespace orv
