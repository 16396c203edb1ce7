#include "WrittenFile.h"

#include <FileCopy.h>
#include <ObservedFile.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/// As long as it lives, files cannot grow beyond 4096 bytes, as on a disk that is full.
class FileLimit
{
public:
    FileLimit()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &myUsual);
        rlimit limit = myUsual;
        limit.rlim_cur = 4096;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileLimit() { ::setrlimit(RLIMIT_FSIZE, &myUsual); }
    Q_DISABLE_COPY_MOVE(FileLimit)

private:
    rlimit myUsual;
};

}

class tst_FileCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheBytes();
    void copiesWhatIsRead();
    void isPrivate();
    void goesWithTheObject();
    void nothingToCopy();
    void noRoom();
    void roomEnds();
    void roomEndsAtLast();
};

void tst_FileCopy::keepsTheBytes()
{
    FileCopy copy(u"source.xml"_s);
    copy.append("ab\0c", 4);
    copy.append("", 0);
    copy.append("d\n", 2);
    copy.finish();
    QCOMPARE(readFile(copy.fileName()), QByteArray("ab\0cd\n", 6));
    QCOMPARE(copy.source(), u"source.xml"_s);
    QCOMPARE(copy.errorString(), QString());
}

// In pieces of any size, and once, though the file changes meanwhile.
void tst_FileCopy::copiesWhatIsRead()
{
    QTemporaryDir folder;
    const QString fileName = folder.filePath(u"c.xml"_s);
    const QByteArray content = QByteArray("<products/>\n").repeated(20000);
    QFile source(fileName);
    QVERIFY(source.open(QIODevice::WriteOnly) && source.write(content) == content.size());
    source.close();
    FileCopy copy(fileName);
    ObservedFile file(fileName, [](int) { return true; });
    file.setCopy(&copy);
    QVERIFY(file.open(QIODevice::ReadOnly));
    for (qint64 size = 1; !file.atEnd(); size = size * 3 + 1)
        file.read(size);
    copy.finish();
    QVERIFY(source.open(QIODevice::WriteOnly) && source.write("another") == 7);
    source.close();
    QCOMPARE(readFile(copy.fileName()), content);
}

// A catalogue may be secret, so other users cannot read its copy.
void tst_FileCopy::isPrivate()
{
    FileCopy copy(u"source.xml"_s);
    copy.append("a", 1);
    copy.finish();
    const QFileDevice::Permissions others = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ReadOther
            | QFileDevice::WriteOther;
    QVERIFY(QFileInfo::exists(copy.fileName()));
    QCOMPARE(QFile::permissions(copy.fileName()) & others, QFileDevice::Permissions());
}

void tst_FileCopy::goesWithTheObject()
{
    QString fileName;
    {
        FileCopy copy(u"source.xml"_s);
        copy.append("a", 1);
        copy.finish();
        fileName = copy.fileName();
        QVERIFY(QFileInfo::exists(fileName));
    }
    QVERIFY(!QFileInfo::exists(fileName));
}

void tst_FileCopy::nothingToCopy()
{
    FileCopy copy(u"source.xml"_s);
    copy.finish();
    QCOMPARE(copy.fileName(), QString());
    QCOMPARE(copy.errorString(), QString());
}

void tst_FileCopy::noRoom()
{
    const QByteArray before = qgetenv("TMPDIR");
    QTemporaryDir folder;
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    FileCopy copy(u"source.xml"_s);
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QVERIFY(folder.remove());
    copy.append("a", 1);
    QVERIFY(!copy.errorString().isEmpty());
    copy.append("b", 1);
    copy.finish();
    QCOMPARE(copy.fileName(), QString());
}

// The part that was written goes.
void tst_FileCopy::roomEnds()
{
    FileCopy copy(u"source.xml"_s);
    copy.append("a", 1);
    const QString fileName = copy.fileName();
    QVERIFY(QFile::exists(fileName));
    const FileLimit limit;
    copy.append(QByteArray(100000, 'x').constData(), 100000);
    QVERIFY(!copy.errorString().isEmpty());
    QCOMPARE(copy.fileName(), QString());
    QVERIFY(!QFile::exists(fileName));
}

// The last bytes wait in memory until the end.
void tst_FileCopy::roomEndsAtLast()
{
    FileCopy copy(u"source.xml"_s);
    const FileLimit limit;
    copy.append(QByteArray(8000, 'x').constData(), 8000);
    QCOMPARE(copy.errorString(), QString());
    copy.finish();
    QVERIFY(!copy.errorString().isEmpty());
    QCOMPARE(copy.fileName(), QString());
}

QTEST_GUILESS_MAIN(tst_FileCopy)
#include "tst_FileCopy.moc"
