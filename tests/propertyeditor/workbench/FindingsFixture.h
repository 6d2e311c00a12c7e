#pragma once

#include "FindFixture.h"

#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/workbench/Findings.h>
#include <orv/widgets/TableView.h>

#include <QTemporaryDir>
#include <QThread>

/// Documents with something wrong, and windows that check them.
namespace FindingsFixture {

using namespace FindFixture;
using namespace Qt::StringLiterals;

enum FindingColumn
{
    kSeverity,
    kMessage,
    kPlace,
    kHint,
    kRule,
};

inline QJsonObject sample(const QString &name, const QString &folder)
{
    return {{u"SampleName"_s, name}, {u"SamplePath"_s, u"%1/%2.mzML"_s.arg(folder, name)}};
}

inline QJsonObject samplesCell(int count, const QString &folder = u"/no/such"_s)
{
    QJsonArray samples;
    for (int i = 1; i <= count; ++i)
        samples.append(sample(u"S%1"_s.arg(i), folder));
    return {{u"type"_s, u"Samples"_s},
            {u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, u"SamplesTable"_s},
                                                     {u"value"_s, QJsonObject{{u"Samples"_s, samples}}}}}}};
}

/// A workflow with nothing wrong, whose one sample lies in \a folder.
inline QJsonObject faultless(const QTemporaryDir &folder)
{
    write(folder, "S1.mzML", QByteArrayLiteral("<mzML/>"));
    return documentOf({samplesCell(1, folder.path()), settingsCell("Preview", {setting("Samples", u"*"_s)})});
}

inline QJsonObject withoutSamples()
{
    return documentOf({settingsCell("Preview", {})});
}

/// A file that isn't there, in a folded group of the second tab, and samples without their files.
inline QJsonObject faulty(int samples = 2, int priority = 1)
{
    QJsonObject file = setting("InSilicoPeptidesFile", u"/no/such/peptides.csv"_s, "Extras");
    file.insert(u"priority"_s, priority);
    const QJsonObject map = settingsCell("Senthia", {setting("Samples", u"*"_s), file});
    return Documents::document(
        {Documents::tab(u"Input"_s, {u"Samples"_s}, {samplesCell(samples)}),
         Documents::tab(u"Search"_s, {u"One"_s, u"Two"_s}, {settingsCell("Preview", {}), map})},
        metadata());
}

/// Finds something in every document.
class Suspicious : public orv::PropertyEditor::AbstractValidator
{
public:
    explicit Suspicious(QThread **thread = nullptr)
        : m_thread(thread)
    {}

    bool validate(const orv::PropertyEditor::Content &, const QUrl &, QList<QString> *warnings,
                  QList<QString> *errors) const override
    {
        if (m_thread)
            *m_thread = QThread::currentThread();
        errors->append(u"Preview isn't licensed"_s);
        warnings->append(u"The queue is long"_s);
        return false;
    }

private:
    QThread **m_thread;
};

struct Checked : Bench
{
    explicit Checked(const QJsonObject &document = faulty())
    {
        if (!open(document))
            qFatal("The test's document can't be opened");
    }

    [[nodiscard]] orv::Findings &findings() const { return *bench->findings(); }
    [[nodiscard]] QAbstractItemView &list() const { return *child<QAbstractItemView>("findings"); }
    [[nodiscard]] bool waitFor(orv::Findings::State state) const
    {
        constexpr int kLimit = 30'000; // ten thousand samples on a busy machine
        return QTest::qWaitFor([this, state] { return findings().state() == state; }, kLimit);
    }
    [[nodiscard]] bool check() const
    {
        QTest::keyClick(window, Qt::Key_F9);
        return waitFor(orv::Findings::State::Checked);
    }
    [[nodiscard]] int rowOf(const QString &part) const
    {
        for (int column = 0; column < list().model()->columnCount(); ++column) {
            const QStringList texts = shown(list(), column);
            for (int row = 0; row < texts.size(); ++row) {
                if (texts.at(row).contains(part))
                    return row;
            }
        }
        return -1;
    }
    [[nodiscard]] orv::TableView &table() const { return *window->grid(0)->findChild<orv::TableView *>(); }
    [[nodiscard]] QString remark() const
    {
        const orv::GridPropertyEditorView *column = view(1, 1);
        return column->editorView()->remark(column->propertySet()->property("InSilicoPeptidesFile"));
    }

    LogCapture log;
};

} // namespace FindingsFixture
