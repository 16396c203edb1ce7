// piece: runs a piece of code from the guide as a test.
#include <RVProductBase/RVOrientation.h>

#include <QTest>

using namespace Qt::StringLiterals;

class Piece : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void run()
    {
        const RVOrientation orientation(u"portrait, square"_s);

        QCOMPARE(orientation.value(), ORIENTATION_PORTRAIT | ORIENTATION_SQUARE);
        QCOMPARE(orientation.encodeCSV(), u"portrait, square"_s);
    }
};

QTEST_MAIN(Piece)
#include "main.moc"
