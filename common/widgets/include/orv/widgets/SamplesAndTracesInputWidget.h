#pragma once

#include <orv/core_ms/SampleFileFinder.h>
#include <orv/samples/SamplePathAndName.h>
#include <orv/samples/SamplesInput.h>
#include <orv/widgets/Export.h>

#include <QJsonObject>
#include <QUrl>
#include <QWidget>

#include <memory>

namespace orv {

class SampleFileChecker;
class SamplesAndTracesTables;
class TableEditor;

/// The samples of a workflow as a table that people edit, with the traces of the selected ones and the
/// presets of peak options below. Files and folders are added by dialog, by drop and by paste; whether they
/// exist is asked in the background. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT SamplesAndTracesInputWidget : public QWidget
{
    Q_OBJECT

public:
    explicit SamplesAndTracesInputWidget(QWidget *parent = nullptr);
    /// \a checker answers for the files; it becomes the widget's.
    explicit SamplesAndTracesInputWidget(SampleFileChecker *checker, QWidget *parent = nullptr);
    ~SamplesAndTracesInputWidget() override;

    /// The value of the samples' property. What nobody edited comes back as it was set.
    [[nodiscard]] QJsonObject jsonContent() const;
    /// What is no samples' content is told in the widget and in the error, and comes back from jsonContent().
    /// Emits samplesChanged().
    [[nodiscard]] Error setFromJsonContent(const QJsonObject &json);

    [[nodiscard]] QList<SamplesInput::Entry> samplesInput() const;
    /// Appends samples but those that the table has; emits samplesChanged() when there are any.
    void addNewSampleFiles(const QList<SamplePathAndName> &files);

    /// As SamplesAndTracesTables::validate(). The lists may be null, and are appended to.
    bool validate(QStringList *warnings, QStringList *errors, QStringList *details) const;

    /// What the samples are for: columns that it doesn't need are hidden while they are empty. All are shown
    /// for an empty list.
    void setModes(const QList<SamplesInput::Mode> &modes);

    /// The folder that relative files count from.
    void setBaseUrl(const QUrl &baseUrl);

    /// What the widget shows, for screen readers and reports.
    [[nodiscard]] QString plainText() const;

Q_SIGNALS:
    /// At once for the functions above; for what a person does as soon as the event has been handled, so that
    /// listeners may do anything.
    void samplesChanged(const QList<orv::SamplesInput::Entry> &samples);
    /// jsonContent() became another one by a person's hand, samples or not, or because files were added; when
    /// samplesChanged() would tell, and after it.
    void edited();
    /// Somebody removed a custom column.
    void removeCustomColumn(const QString &columnName);

protected:
    bool event(QEvent *event) override;

private:
    void build();
    void needTables();
    void buildSamples();
    void buildTraces();
    void addCommands();
    void orderFocus();
    int addSamples(const QList<SamplePathAndName> &files);
    void addFound(const SampleFileFinder::Found &found);
    void chooseFiles();
    void chooseFolder();
    void askForColumn();
    void askToRemove(const QString &column);
    void showColumns();
    void showTracesOfSelected();
    void showNotice(const Error &error);
    void hear();
    void tellSoon();
    void tell();
    void say(const QString &text);

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
