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
    void showsTheLastMessage();
    void showsMarkupAsItIs();
    void knowsItsTextInAHiddenWindow();
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

QTEST_MAIN(tst_MessageBanner)
#include "tst_MessageBanner.moc"
