#include "Trace.h"
#include "ViewTrace.h"

#include <KPropertyFactory>

#include <QColor>
#include <QCursor>
#include <QDateTime>
#include <QFont>
#include <QPixmap>
#include <QRectF>
#include <QSizeF>
#include <QSizePolicy>
#include <QUrl>

using Trace::describe;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

void traceText(KProperty &property)
{
    const KPropertyFactoryManager *const manager = KPropertyFactoryManager::self();
    Trace::line(QStringLiteral("%1 %2: %3 | %4 | %5 can=%6")
                    .arg(Trace::show(property.name()), Trace::typeName(property.type()),
                         Trace::show(manager->propertyValueToString(&property)),
                         Trace::show(manager->valueToString(property.type(), property.value())),
                         Trace::show(manager->propertyValueToLocalizedString(&property)),
                         Trace::show(manager->canConvertValueToText(&property))));
}

void traceText(const QVariant &value, int type = KProperty::Auto, const char *option = nullptr,
               const QVariant &optionValue = QVariant())
{
    KProperty property("p", value, text("P"), QString(), type);
    if (option) {
        property.setOption(option, optionValue);
    }
    traceText(property);
}

void traceNumbers()
{
    Trace::title("numbers as text");
    for (const QVariant &value : QVariantList{0, -5, 1234567, 7u, 8ll, 9ull, 1.0, 2.5, 1234567.89}) {
        traceText(value);
        traceText(value, KProperty::Auto, "prefix", text("$"));
        traceText(value, KProperty::Auto, "suffix", text("mm"));
        traceText(value, KProperty::Auto, "precision", 4);
        traceText(value, KProperty::Auto, "min", value);
    }
    for (const double fine : {1.005, 1234567.891, 0.0001}) {
        traceText(fine, KProperty::Auto, "precision", 4);
        Trace::differs("double-default-precision");
        traceText(fine);
    }
    KProperty bounded("bounded", 3);
    bounded.setOption("min", 3);
    bounded.setOption("minValueText", text("automatic"));
    traceText(bounded);
    bounded.setValue(4);
    traceText(bounded);
    KProperty real("real", 1.5);
    real.setOption("min", 1.5);
    real.setOption("minValueText", text("automatic"));
    traceText(real);
    traceText(QVariant(), KProperty::Int);
    traceText(QVariant(), KProperty::Double);
    traceText(text("abc"), KProperty::Int);
}

void traceBools()
{
    Trace::title("bools as text");
    for (const QVariant &value : QVariantList{true, false, QVariant(), 1, text("true")}) {
        KProperty property("p", value, QString(), QString(), KProperty::Bool);
        traceText(property);
        property.setOption("3State", true);
        traceText(property);
        property.setOption("yesName", text("on"));
        property.setOption("noName", text("off"));
        property.setOption("3rdStateName", text("unknown"));
        traceText(property);
        property.setOption("3State", false);
        Trace::differs("two-state-names");
        traceText(property);
        property.setOption("yesName", QVariant());
        property.setOption("noName", QVariant());
        property.setOption("nullName", text("nothing"));
        traceText(property);
    }
}

void traceTexts()
{
    Trace::title("texts and lists as text");
    traceText(text("plain"));
    traceText(text("two\nlines"));
    traceText(QString(300, QLatin1Char('x')));
    traceText(QByteArray("bytes"));
    traceText(QStringList{text("a"), text("b c")});
    traceText(QStringList());
    traceText(QVariantList{1, text("b")});
    traceText(QUrl(text("file:///tmp/a b.txt")));
    traceText(QUrl(text("http://host/path?q=1")));
    traceText(QUrl());
    traceText(QVariant(), KProperty::String);
    traceText(QVariant(), KProperty::Invalid);
    traceText(text("u"), KProperty::UserDefined + 77);
    for (const QVariant &value : QVariantList{text("one"), text("zzz"), QVariant(), 1}) {
        KProperty property("p",
                           new KPropertyListData(QStringList{text("one"), text("two")},
                                                 QStringList{text("One"), text("Two")}),
                           value);
        traceText(property);
        property.setOption("extraValueAllowed", true);
        traceText(property);
        property.setListData(nullptr);
        traceText(property);
    }
    KProperty numbers("p", new KPropertyListData(QVariantList{1, 2}, QStringList{text("One"), text("Two")}),
                      QVariant(2));
    traceText(numbers);
    numbers.setValue(1);
    traceText(numbers);
}

void traceOthers()
{
    Trace::title("other values as text");
    const QDate date(2021, 3, 4);
    const QTime time(15, 6, 7);
    traceText(date);
    traceText(time);
    traceText(QDateTime(date, time));
    traceText(QDate());
    traceText(QColor(1, 2, 3));
    traceText(QColor(Qt::red));
    traceText(QColor());
    traceText(QColor(1, 2, 3, 4));
    traceText(QVariant::fromValue(QCursor(Qt::WaitCursor)));
    traceText(QVariant::fromValue(QCursor(Qt::ArrowCursor)));
    traceText(QVariant::fromValue(QCursor(Qt::DragLinkCursor)));
    traceText(QPixmap(3, 4));
    traceText(QPixmap());
    for (int style = 0; style < 7; ++style) {
        traceText(style, KProperty::LineStyle);
    }
    QFont font(text("Nimbus"), 12);
    traceText(font);
    font.setBold(true);
    font.setItalic(true);
    traceText(font);
    font.setPixelSize(17);
    traceText(font);
    font.setUnderline(true);
    font.setStrikeOut(true);
    traceText(font);
}

void traceComposed(const QVariant &value, const QVariant &second)
{
    KProperty property("composed", value, text("Composed"));
    DUMP(property);
    if (property.type() == KProperty::SizePolicy) {
        Trace::differs("size-policy-text");
    }
    traceText(property);
    GET(property.setValue(second));
    DUMP(property);
    if (property.children() && !property.children()->isEmpty()) {
        KProperty *const child = property.children()->first();
        GET(child->setValue(3));
        DUMP(property);
        Trace::line(QStringLiteral("same ") + Trace::show(property.valueEqualsTo(second)));
        RUN(property.resetValue());
        DUMP(property);
        property.setOption("suffix", text(" mm"));
        property.setOption("precision", 1);
        if (property.type() == KProperty::SizePolicy) {
            Trace::differs("size-policy-text");
        }
        traceText(property);
        for (KProperty *each : *property.children()) {
            traceText(*each);
        }
    }
}

} // namespace

void traceDisplays()
{
    traceNumbers();
    traceBools();
    traceTexts();
    traceOthers();
    Trace::title("composed types");
    traceComposed(QPoint(1, 2), QPoint(5, 6));
    traceComposed(QPointF(1.5, 2), QPointF(5, 6));
    traceComposed(QSize(1, 2), QSize(5, 6));
    traceComposed(QSizeF(1.5, 2), QSizeF(5, 6));
    traceComposed(QRect(1, 2, 3, 4), QRect(5, 6, 7, 8));
    traceComposed(QRectF(1.5, 2, 3, 4), QRectF(5, 6, 7, 8));
    traceComposed(QVariant::fromValue(QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding)),
                  QVariant::fromValue(QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored)));
    traceComposed(QRect(), QRect(0, 0, 1, 1));
    traceComposed(QPoint(), QPoint(0, 1));
}
