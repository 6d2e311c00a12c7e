#include "../TextRoom.h"
#include "EveryWidget.h"
#include "WidgetTest.h"

using namespace orv;

namespace {

/// Half of a small screen.
constexpr QSize kHalfScreen(640, 720);

} // namespace

/// Texts of other languages on half a screen.
class RoomTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void longTextsHaveRoom_data() { EveryWidget::addRows(); }
    void longTextsHaveRoom() { look<TextRoom::LongTexts>(); }
    void tallTextsHaveRoom_data() { EveryWidget::addRows(); }
    void tallTextsHaveRoom() { look<TextRoom::TallTexts>(); }

private:
    template<class Texts>
    void look();
};

template<class Texts>
void RoomTest::look()
{
    QFETCH(const int, maker);
    const Texts texts;
    const std::unique_ptr<QWidget> widget = EveryWidget::all()[maker].make();
    widget->resize(kHalfScreen);
    widget->show();
    QVERIFY(QTest::qWaitForWindowActive(widget.get()));
    QVERIFY2(widget->minimumSizeHint().width() <= kHalfScreen.width() &&
                 widget->minimumSizeHint().height() <= kHalfScreen.height(),
             qPrintable(QStringLiteral("%1 x %2")
                            .arg(widget->minimumSizeHint().width())
                            .arg(widget->minimumSizeHint().height())));
    QTRY_COMPARE(TextRoom::clipped(*widget).join(u'\n'), QString());
}

WIDGET_REGISTER_TEST(RoomTest)

#include "RoomTest.moc"
