#pragma once

#include "FindFixture.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/workbench/Comparison.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>

#include <QTreeView>

/// A window that is compared with files, as a person does it.
namespace ComparisonFixture {

using namespace FindFixture;
using namespace Qt::StringLiterals;
using orv::Comparison;
using orv::DialogAnswer;
using orv::DialogAnswerer;
using orv::DialogRequest;
using orv::DialogService::install;
using orv::PropertyEditorJsonUtils::withoutStamps;

/// A column of three settings.
inline QJsonObject searchColumn(int peaks, const QString &digestion, double tolerance = 10)
{
    return karvonCell(
        {setting("KarvonDigestLetters", digestion, "Digestion"), setting("KarvonCentroidTopk", peaks),
         setting("KarvonFragmentMassError", QJsonObject{{u"value"_s, tolerance}, {u"unit"_s, u"ppm"_s}})});
}

inline QJsonObject thisDocument()
{
    return documentOf({searchColumn(1000, u"RK"_s)});
}

inline QJsonObject otherDocument()
{
    return documentOf({searchColumn(500, u"R"_s, 20)}, metadata("5.47.0", "Other name"));
}

/// Goes on, whatever is asked.
class GoingOn : public DialogAnswerer
{
public:
    GoingOn()
        : m_earlier(install(this))
    {}
    ~GoingOn() override { install(m_earlier); }

    std::optional<DialogAnswer> answer(const DialogRequest &request) override
    {
        for (const QString &button : {u"Apply"_s, u"Yes"_s}) {
            if (request.buttons.contains(button))
                return DialogAnswer{button, {}};
        }
        return DialogAnswer{request.buttons.value(0), {}};
    }

private:
    DialogAnswerer *m_earlier;
};

struct Compared : Bench
{
    explicit Compared(const QJsonObject &document = thisDocument())
    {
        if (!open(document))
            qFatal("The test's document can't be opened");
    }

    [[nodiscard]] Comparison &comparison() const { return *bench->comparison(); }
    [[nodiscard]] QTreeView &tree() const { return *child<QTreeView>("differences"); }
    [[nodiscard]] QString summary() const { return child<QLabel>("comparisonSummary")->text(); }
    [[nodiscard]] QString note() const { return child<QLabel>("comparisonNote")->text(); }
    [[nodiscard]] QPushButton &takeOver() const { return *child<QPushButton>("takeOver"); }
    [[nodiscard]] bool isQuiet() const
    {
        return QTest::qWaitFor([this] { return !bench || !comparison().isBusy(); }, 20000);
    }

    /// By the menu's key and the dialog.
    [[nodiscard]] bool compareWith(const QString &path)
    {
        answers.expectPath(u"Compare With Workflow"_s, path);
        QTest::keyClick(window, Qt::Key_F7, Qt::ControlModifier);
        return isQuiet();
    }
    [[nodiscard]] bool compareWith(const QJsonObject &document, const char *name = "OTHER.wflw")
    {
        return compareWith(write(folder, name, document));
    }

    /// Of the rows with this text in a column the first.
    [[nodiscard]] QModelIndex rowOf(const QString &name, const QModelIndex &above = {}) const
    {
        const QAbstractItemModel &model = *tree().model();
        for (int row = 0; row < model.rowCount(above); ++row) {
            const QModelIndex index = model.index(row, 0, above);
            if (index.data().toString() == name)
                return index;
            if (const QModelIndex below = rowOf(name, index); below.isValid())
                return below;
        }
        return {};
    }
    /// Indented lines of what is there.
    [[nodiscard]] QStringList lines(const QModelIndex &above = {}, int depth = 0) const
    {
        QStringList list;
        const QAbstractItemModel &model = *tree().model();
        for (int row = 0; row < model.rowCount(above); ++row) {
            const QModelIndex index = model.index(row, 0, above);
            QString line = QString(depth, u'-') + index.data().toString();
            if (!model.hasChildren(index)) {
                line += u": %1 | %2"_s.arg(index.siblingAtColumn(1).data().toString(),
                                           index.siblingAtColumn(2).data().toString());
            }
            list += QStringList{line} + lines(index, depth + 1);
        }
        return list;
    }
    void check(const QString &name) const
    {
        tree().setFocus();
        tree().setCurrentIndex(rowOf(name));
        QTest::keyClick(&tree(), Qt::Key_Space);
    }
    [[nodiscard]] Qt::CheckState stateOf(const QString &name) const
    {
        return Qt::CheckState(rowOf(name).data(Qt::CheckStateRole).toInt());
    }
    [[nodiscard]] QByteArray shownDocument() const
    {
        return QJsonDocument(withoutStamps(window->content().document())).toJson();
    }
    [[nodiscard]] QString value(const char *name) const
    {
        return view(0, 0)->propertySet()->property(name).value().toString();
    }

    QTemporaryDir folder;
    orv::ScriptedAnswerer answers;
    LogCapture log;
};

inline const QString kPeaks = u"Peaks kept per spectrum"_s;

} // namespace ComparisonFixture
