#include <RVProductBase/RVOrderProjectInfo.h>

#include <QDataStream>
#include <QDebug>
#include <QTest>

#include <type_traits>

using namespace Qt::StringLiterals;

class tst_RVOrderProjectInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fields();
    void deletingInfo();
    void validity_data();
    void validity();
    void setsOrderId();
    void writesStreams_data();
    void writesStreams();
    void debugOutput();
    void compares();
    void copies();
};

void tst_RVOrderProjectInfo::fields()
{
    const RVOrderProjectInfo info(u"session"_s, u"A-1"_s, 3);
    QCOMPARE(info.xtciSession(), u"session"_s);
    QCOMPARE(info.orderId().toString(), u"A-1"_s);
    QCOMPARE(info.orderPosition(), 3);
    QVERIFY(!info.deleteProjectInfo());
    QVERIFY(std::has_virtual_destructor_v<RVOrderProjectInfo>);
}

void tst_RVOrderProjectInfo::deletingInfo()
{
    const RVOrderProjectInfo info = RVOrderProjectInfo::createDeletingProjetInfo();
    QVERIFY(info.deleteProjectInfo());
    QVERIFY(info.xtciSession().isNull());
    QVERIFY(!info.orderId().isValid());
    QCOMPARE(info.orderPosition(), 0);
    QVERIFY(!info.isValid());
    const RVOrderProjectInfo copy = info;
    QVERIFY(copy.deleteProjectInfo());
}

void tst_RVOrderProjectInfo::validity_data()
{
    QTest::addColumn<QString>("session");
    QTest::addColumn<QString>("orderId");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("valid");
    QTest::newRow("all") << u"s"_s << u"A"_s << 1 << true;
    QTest::newRow("first position") << u"s"_s << u"A"_s << 0 << true;
    QTest::newRow("empty texts") << u""_s << u""_s << 0 << true;
    QTest::newRow("unknown position") << u"s"_s << u"A"_s << -1 << false;
    QTest::newRow("no session") << QString() << u"A"_s << 1 << false;
    QTest::newRow("no order") << u"s"_s << QString() << 1 << false;
}

void tst_RVOrderProjectInfo::validity()
{
    QFETCH(QString, session);
    QFETCH(QString, orderId);
    QFETCH(int, position);
    QTEST(RVOrderProjectInfo(session, orderId, position).isValid(), "valid");
}

void tst_RVOrderProjectInfo::setsOrderId()
{
    RVOrderProjectInfo info(u"s"_s, RVOrderId(), 1);
    const RVOrderProjectInfo copy = info;
    info.setOrderId(u"B"_s);
    QCOMPARE(info.orderId().toString(), u"B"_s);
    QVERIFY(info.isValid());
    QVERIFY(!copy.isValid());
}

void tst_RVOrderProjectInfo::writesStreams_data()
{
    QTest::addColumn<RVOrderProjectInfo>("info");
    QTest::addColumn<QByteArray>("hex");
    QTest::newRow("all") << RVOrderProjectInfo(u"s"_s, u"A-"_s, 258)
                         << QByteArray("00 00 00 04 00 41 00 2d 00 00 01 02 00 00 00 02 00 73");
    QTest::newRow("negative position") << RVOrderProjectInfo(u""_s, RVOrderId(), -2)
                                       << QByteArray("ff ff ff ff ff ff ff fe 00 00 00 00");
    QTest::newRow("deleting, without the flag")
            << RVOrderProjectInfo::createDeletingProjetInfo() << QByteArray("ff ff ff ff 00 00 00 00 ff ff ff ff");
}

void tst_RVOrderProjectInfo::writesStreams()
{
    QFETCH(RVOrderProjectInfo, info);
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    QDataStream &returned = info << stream;
    QCOMPARE(&returned, &stream);
    QTEST(bytes.toHex(' '), "hex");
}

void tst_RVOrderProjectInfo::debugOutput()
{
    QString text;
    QDebug(&text) << RVOrderProjectInfo(u"session"_s, u"A-1"_s, 3) << "end";
    QCOMPARE(text, u"\"A-1\" 3 \"session\" end "_s);
    text.clear();
    QDebug(&text).nospace() << RVOrderProjectInfo(u"session"_s, u"A-1"_s, 3);
    QCOMPARE(text, u"\"A-1\"3\"session\""_s);
}

void tst_RVOrderProjectInfo::compares()
{
    const RVOrderProjectInfo info(u"s"_s, u"A"_s, 1);
    QVERIFY(info == RVOrderProjectInfo(u"s"_s, u"A"_s, 1));
    QVERIFY(!(info != RVOrderProjectInfo(u"s"_s, u"A"_s, 1)));
    QVERIFY(info != RVOrderProjectInfo(u"t"_s, u"A"_s, 1));
    QVERIFY(info != RVOrderProjectInfo(u"s"_s, u"B"_s, 1));
    QVERIFY(info != RVOrderProjectInfo(u"s"_s, u"A"_s, 2));
    QVERIFY(RVOrderProjectInfo::createDeletingProjetInfo() != RVOrderProjectInfo(QString(), RVOrderId(), 0));
}

void tst_RVOrderProjectInfo::copies()
{
    const RVOrderProjectInfo info(u"session"_s, u"A-1"_s, 3);
    RVOrderProjectInfo copy = info;
    copy.setOrderId(u"B-2"_s);
    QCOMPARE(info.orderId().toString(), u"A-1"_s);
    const RVOrderProjectInfo moved = std::move(copy);
    QCOMPARE(moved.xtciSession(), u"session"_s);
    QCOMPARE(moved.orderId().toString(), u"B-2"_s);
    QCOMPARE(moved.orderPosition(), 3);
    QVERIFY(!moved.deleteProjectInfo());
    RVOrderProjectInfo deleting = RVOrderProjectInfo::createDeletingProjetInfo();
    const RVOrderProjectInfo movedDeleting = std::move(deleting);
    QVERIFY(movedDeleting.deleteProjectInfo());
}

QTEST_GUILESS_MAIN(tst_RVOrderProjectInfo)
#include "tst_RVOrderProjectInfo.moc"
