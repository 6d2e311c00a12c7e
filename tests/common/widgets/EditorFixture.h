#pragma once

#include <orv/widgets/TableEditor.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

/// A table of samples as a person has it on the screen.
namespace EditorFixture {

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

inline QList<orv::TableColumn> columns()
{
    using orv::TableColumn;
    using Kind = orv::TableColumnKind;
    TableColumn name{.name = text("name"), .title = text("Name")};
    name.isRequired = true;
    TableColumn mass{.name = text("mass"), .title = text("Mass"), .unit = text("Da"), .kind = Kind::Number};
    mass.minimum = 0;
    mass.maximum = 10000;
    TableColumn charge{.name = text("charge"), .title = text("Charge"), .kind = Kind::Integer};
    charge.defaultText = text("2");
    TableColumn mode{.name = text("mode"), .title = text("Mode"), .kind = Kind::Choice};
    mode.choices = {text("Positive"), text("Negative")};
    TableColumn sequence{.name = text("sequence"), .title = text("Sequence"), .kind = Kind::Sequence};
    TableColumn file{.name = text("file"), .title = text("File"), .kind = Kind::File};
    TableColumn color{.name = text("color"), .title = text("Colour"), .kind = Kind::Color};
    return {name, mass, charge, mode, sequence, file, color};
}

inline QList<QStringList> rows()
{
    const auto row = [](const char *words) { return text(words).split(u' '); };
    return {row("alpha 500.25 2 Positive PEPTIDEK /data/runs/alpha.mzML #1f77b4"),
            row("beta 1200.5 3 Negative LVNELTEFAK /data/runs/beta.mzML #ff7f0e"),
            row("gamma 99 1 Positive YLYEIAR /data/runs/gamma.mzML #2ca02c")};
}

struct Editor
{
    explicit Editor(const QList<QStringList> &content = rows(), const QLocale &locale = QLocale::c())
    {
        QLocale::setDefault(locale);
        editor.view()->tableModel()->setLocale(locale);
        if (sheet.load(content).hasError())
            qFatal("The fixture doesn't load");
        editor.setTitle(text("Samples"));
        editor.resize(900, 500);
        editor.show();
        (void)QTest::qWaitForWindowActive(&editor);
        editor.view()->setFocus();
    }

    orv::TableView *view() { return editor.view(); }
    QModelIndex at(int row, int column) { return view()->tableModel()->index(row, column); }
    QPoint centerOf(int row, int column) { return view()->visualRect(at(row, column)).center(); }
    void click(int row, int column, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, modifiers, centerOf(row, column));
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    /// The first key may open an editor, which gets the others.
    void type(const char *words)
    {
        for (const QChar c : text(words))
            QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
    }
    QString cell(int row, int column) { return sheet.text(row, column).toString(); }
    QString message() { return editor.findChild<QLabel *>(text("message"))->text(); }
    QString counts() { return editor.findChild<QLabel *>(text("counts"))->text(); }
    QPoint current() { return {view()->currentIndex().column(), view()->currentIndex().row()}; }

    orv::TableSheet sheet{columns()};
    orv::TableEditor editor{&sheet};
};

} // namespace EditorFixture
