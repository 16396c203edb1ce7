#include <MessageBanner.h>

#include <QLabel>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

class tst_MessageBanner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void staysUntilItIsClosed();
    void beginsHidden();
    void showsTheLastMessage();
    void showsMarkupAsItIs();
    void knowsItsTextInAHiddenWindow();
    void looksLikeAMessage();
};

void tst_MessageBanner::staysUntilItIsClosed()
{
    MessageBanner banner;
    QVERIFY(banner.isHidden());
    QCOMPARE(banner.text(), QString());
    banner.showMessage(u"broken"_s);
    QVERIFY(banner.isVisible());
    QCOMPARE(banner.text(), u"broken"_s);
    QTest::mouseClick(banner.findChild<QToolButton *>(), Qt::LeftButton);
    QVERIFY(banner.isHidden());
    QCOMPARE(banner.text(), QString());
}

void tst_MessageBanner::beginsHidden()
{
    QWidget window;
    const auto *banner = new MessageBanner(&window);
    window.show();
    QVERIFY(!banner->isVisible());
}

void tst_MessageBanner::showsTheLastMessage()
{
    MessageBanner banner;
    banner.showMessage(u"first"_s);
    banner.showMessage(u"second"_s);
    QCOMPARE(banner.text(), u"second"_s);
    banner.hide();
    banner.showMessage(u"third"_s);
    QVERIFY(banner.isVisible());
    QCOMPARE(banner.text(), u"third"_s);
}

void tst_MessageBanner::showsMarkupAsItIs()
{
    MessageBanner banner;
    banner.showMessage(u"<b>a</b> & b"_s);
    QCOMPARE(banner.text(), u"<b>a</b> & b"_s);
    QCOMPARE(banner.findChild<QLabel *>(u"bannerText"_s)->textFormat(), Qt::PlainText);
}

void tst_MessageBanner::knowsItsTextInAHiddenWindow()
{
    QWidget window;
    auto *banner = new MessageBanner(&window);
    banner->showMessage(u"broken"_s);
    QVERIFY(!banner->isVisible());
    QCOMPARE(banner->text(), u"broken"_s);
}

// In the colours of a tool tip, with an icon at its left; the text gets the room and can be copied.
void tst_MessageBanner::looksLikeAMessage()
{
    MessageBanner banner;
    QCOMPARE(banner.objectName(), u"banner"_s);
    QCOMPARE(banner.frameShape(), QFrame::StyledPanel);
    QVERIFY(banner.autoFillBackground());
    QCOMPARE(banner.backgroundRole(), QPalette::ToolTipBase);
    const auto *text = banner.findChild<QLabel *>(u"bannerText"_s);
    QCOMPARE(text->foregroundRole(), QPalette::ToolTipText);
    QCOMPARE(text->textInteractionFlags(), Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QVERIFY(text->wordWrap());
    const auto *close = banner.findChild<QToolButton *>();
    QVERIFY(close->autoRaise());
    QCOMPARE(close->text(), u"Close"_s);
    QCOMPARE(close->accessibleName(), u"Close the message"_s);
    banner.resize(600, 60);
    banner.showMessage(u"broken"_s);
    QVERIFY(QTest::qWaitForWindowExposed(&banner));
    const QLabel *icon = nullptr;
    for (const QLabel *label : banner.findChildren<QLabel *>()) {
        if (label != text)
            icon = label;
    }
    QVERIFY(icon);
    QVERIFY(!icon->pixmap().isNull());
    QVERIFY(icon->x() > 0 && icon->width() <= icon->sizeHint().width());
    QVERIFY(text->x() > icon->geometry().right());
    QVERIFY(close->x() > text->geometry().right());
    QVERIFY(close->geometry().right() > 500);
}

QTEST_MAIN(tst_MessageBanner)
#include "tst_MessageBanner.moc"
