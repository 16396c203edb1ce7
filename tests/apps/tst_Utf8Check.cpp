#include <Utf8Check.h>

#include <QRandomGenerator>
#include <QString>
#include <QStringDecoder>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_Utf8Check : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void places_data();
    void places();
    void asQtDecodes();
    void wherePiecesEnd();
};

/// "line:column" of the first fault; empty where there is none.
static QString fault(const QByteArray &file, qsizetype pieceSize)
{
    Utf8Check check;
    for (qsizetype i = 0; i < file.size(); i += pieceSize)
        check.read(QByteArrayView(file).sliced(i, qMin(pieceSize, file.size() - i)));
    return check.fault() ? u"%1:%2"_s.arg(check.fault()->line).arg(check.fault()->column) : QString();
}

void tst_Utf8Check::places_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("place");

    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("one letter") << QByteArray("a") << QString();
    QTest::newRow("umlaut, euro, book") << QByteArray("\xc3\xbc\xe2\x82\xac\xf0\x9f\x93\x95") << QString();
    QTest::newRow("Latin-1") << QByteArray("ab\nc\xfc"
                                           "d")
                             << u"2:2"_s;
    QTest::newRow("at the begin") << QByteArray("\xfc"
                                                "d")
                                  << u"1:1"_s;
    QTest::newRow("behind a long letter") << QByteArray("\xf0\x9f\x93\x95\xff") << u"1:3"_s;
    QTest::newRow("overlong") << QByteArray("a\xc0\xaf") << u"1:2"_s;
    QTest::newRow("surrogate") << QByteArray("a\xed\xa0\x80") << u"1:2"_s;
    QTest::newRow("behind the last letter of Unicode") << QByteArray("a\xf4\x90\x80\x80") << u"1:2"_s;
    QTest::newRow("continuation alone") << QByteArray("a\x80") << u"1:2"_s;
    QTest::newRow("UTF-16 with a mark") << QByteArray("\xff\xfe<\0\xff\xd8", 6) << QString();
    QTest::newRow("UTF-16, other order") << QByteArray("\xfe\xff\0<\xd8\xff", 6) << QString();
    QTest::newRow("UTF-16 without a mark") << QByteArray("<\0\xff\xd8", 4) << QString();
}

void tst_Utf8Check::places()
{
    QFETCH(QByteArray, file);
    for (qsizetype pieceSize = 1; pieceSize <= 8; ++pieceSize)
        QTEST(fault(file, pieceSize), "place");
}

void tst_Utf8Check::asQtDecodes()
{
    QRandomGenerator random(20261121);
    for (int i = 0; i < 20000; ++i) {
        QByteArray file("x");
        for (int letters = random.bounded(6); letters > 0; --letters)
            file += QString(QChar(random.bounded(0xd800))).toUtf8();
        if (random.bounded(2) == 0)
            file[random.bounded(1, int(file.size() + 1)) - 1] = char(random.bounded(1, 256));
        file += "yyyy"; // so that no letter is cut off
        QStringDecoder decoder(QStringDecoder::Utf8);
        const bool isUtf8 = !QString(decoder.decode(file)).isEmpty() && !decoder.hasError();
        QVERIFY2(fault(file, random.bounded(1, 5)).isEmpty() == isUtf8, file.toHex(' ').constData());
    }
}

// A letter may lie in up to four pieces.
void tst_Utf8Check::wherePiecesEnd()
{
    const QByteArray line = QString(u"aü€\U0001F4D5\n"_s).toUtf8();
    for (qsizetype pieceSize = 1; pieceSize <= 20; ++pieceSize) {
        QCOMPARE(fault(line.repeated(50), pieceSize), QString());
        QCOMPARE(fault(line.repeated(50) + "aa\xff", pieceSize), u"51:3"_s);
    }
}

QTEST_APPLESS_MAIN(tst_Utf8Check)
#include "tst_Utf8Check.moc"
