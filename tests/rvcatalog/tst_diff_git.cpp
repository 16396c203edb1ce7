#include "DiffCatalogues.h"
#include "ProgramRun.h"
#include "WrittenFile.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString DRIVER = u"\"%1\" diff --git"_s.arg(QStringLiteral(RVCATALOG));

}

/// "git diff" with rvcatalog as the driver of a repository.
class tst_diff_git : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void changed();
    void onlyWrittenInAnotherWay();
    void added();
    void deleted();
    void renamed();
    void history();
    void broken();
    void unmerged();
    void colorInThePager();
    void exitCode_data();
    void exitCode();

private:
    QString git(const QStringList &arguments, int expectedExitCode = 0, const QStringList &variables = {});
    void write(const QByteArray &content, const QString &name = u"products.xml"_s)
    {
        QVERIFY(writeFile(myFolder->filePath(name), content));
    }
    void commit();

    std::unique_ptr<QTemporaryDir> myFolder;
};

QString tst_diff_git::git(const QStringList &arguments, int expectedExitCode, const QStringList &variables)
{
    const QStringList settings { u"GIT_CONFIG_GLOBAL=/dev/null"_s, u"GIT_CONFIG_NOSYSTEM=1"_s,
                                 u"GIT_AUTHOR_NAME=A"_s,           u"GIT_AUTHOR_EMAIL=a@b"_s,
                                 u"GIT_COMMITTER_NAME=A"_s,        u"GIT_COMMITTER_EMAIL=a@b"_s };
    const ProgramRun run = runProgram(myFolder->path(), QStringLiteral(GIT), arguments, QByteArray(),
                                      environmentWith(settings + variables));
    if (run.exitCode != expectedExitCode)
        qWarning().noquote() << arguments << "ended with" << run.exitCode << run.messages;
    return run.output;
}

void tst_diff_git::commit()
{
    git({ u"add"_s, u"--all"_s });
    git({ u"commit"_s, u"--quiet"_s, u"--message=x"_s });
}

void tst_diff_git::init()
{
    myFolder = std::make_unique<QTemporaryDir>();
    git({ u"init"_s, u"--quiet"_s });
    git({ u"config"_s, u"diff.rvcatalog.command"_s, DRIVER });
    write("*.xml diff=rvcatalog\n", u".gitattributes"_s);
    write(OLD_CATALOGUE);
    commit();
}

void tst_diff_git::changed()
{
    write(NEW_CATALOGUE);
    QCOMPARE(git({ u"diff"_s }),
             u"diff --rvcatalog a/products.xml b/products.xml\n"
             "~ DUN9 \"Fotobuch\"\n"
             "  ~ Cover: HARDCOVER -> SOFTCOVER\n"
             "  + Option alcolor:red: \"alcolor:red\"\n"
             "  + Default of alcolor: \"red\"\n"
             "- DUN5 \"Groß\", article 2\n"
             "~ VIR2 -> VIR3 \"Neu\"\n"
             "  ~ Type: \"VIR2\" -> \"VIR3\"\n"
             "  + Name: \"Neu\"\n"
             "+ TOS1, article 5\n"
             "1 added, 1 removed, 2 changed (1 renamed), 1 equal\n"_s);
    commit();
    QVERIFY(git({ u"diff"_s, u"HEAD~1"_s, u"HEAD"_s }).contains(u"+ TOS1, article 5\n"_s));
}

void tst_diff_git::onlyWrittenInAnotherWay()
{
    write(QByteArray(OLD_CATALOGUE).replace('\'', '"').replace("hardcover", "hard"));
    QCOMPARE(git({ u"diff"_s }),
             u"diff --rvcatalog a/products.xml b/products.xml\n0 added, 0 removed, 0 changed, 4 equal\n"_s);
}

void tst_diff_git::added()
{
    write("<p><product type='A' article_id='1'/></p>", u"further.xml"_s);
    git({ u"add"_s, u"--all"_s });
    QCOMPARE(
            git({ u"diff"_s, u"--cached"_s }),
            u"diff --rvcatalog a/further.xml b/further.xml\n+ A, article 1\n1 added, 0 removed, 0 changed, 0 equal\n"_s);
}

void tst_diff_git::deleted()
{
    QVERIFY(QFile::remove(myFolder->filePath(u"products.xml"_s)));
    QVERIFY(git({ u"diff"_s }).endsWith(u"- VIR2, article 4\n0 added, 4 removed, 0 changed, 0 equal\n"_s));
}

void tst_diff_git::renamed()
{
    QVERIFY(QDir(myFolder->path()).mkdir(u"a b"_s));
    git({ u"mv"_s, u"products.xml"_s, u"a b/c.xml"_s });
    write(QByteArray(OLD_CATALOGUE).replace("'Groß'", "'XL'"), u"a b/c.xml"_s);
    git({ u"add"_s, u"--all"_s });
    QCOMPARE(git({ u"diff"_s, u"--cached"_s, u"--find-renames=20%"_s }),
             u"diff --rvcatalog a/products.xml b/a b/c.xml\n"
             "~ DUN5 \"XL\"\n  ~ Name: \"Groß\" -> \"XL\"\n0 added, 0 removed, 1 changed, 3 equal\n"_s);
}

void tst_diff_git::history()
{
    write(NEW_CATALOGUE);
    commit();
    const QString log = git({ u"log"_s, u"--patch"_s, u"--ext-diff"_s, u"--format=%s"_s, u"--"_s, u"products.xml"_s });
    QVERIFY(log.contains(u"1 added, 1 removed, 2 changed (1 renamed), 1 equal\n"_s));
    QVERIFY(log.contains(u"4 added, 0 removed, 0 changed, 0 equal\n"_s));
}

// A catalogue that cannot be read must not hide the other ones.
void tst_diff_git::broken()
{
    write("<products>\n<product type='A'/>\n</product>\n");
    write("<p/>", u"z.xml"_s);
    git({ u"add"_s, u"--all"_s });
    QCOMPARE(git({ u"diff"_s, u"--cached"_s }),
             u"diff --rvcatalog a/products.xml b/products.xml\n"
             "b/products.xml:3:1: </product> closes <products>, which was opened in line 1\n"
             "diff --rvcatalog a/z.xml b/z.xml\n0 added, 0 removed, 0 changed, 0 equal\n"_s);
    commit();
    write(OLD_CATALOGUE);
    QVERIFY(git({ u"diff"_s }).contains(u"\na/products.xml:3:1: </product> closes"_s));
}

void tst_diff_git::unmerged()
{
    git({ u"checkout"_s, u"--quiet"_s, u"-b"_s, u"other"_s });
    write(NEW_CATALOGUE);
    commit();
    git({ u"checkout"_s, u"--quiet"_s, u"-"_s });
    write("<p/>");
    commit();
    git({ u"merge"_s, u"other"_s }, 1);
    QVERIFY(git({ u"diff"_s, u"--base"_s, u"products.xml"_s }).contains(u"* Unmerged path products.xml\n"_s));
}

void tst_diff_git::colorInThePager()
{
    write(NEW_CATALOGUE);
    QVERIFY(!git({ u"diff"_s }).contains(u'\033'));
    QVERIFY(git({ u"diff"_s }, 0, { u"GIT_PAGER_IN_USE=true"_s, u"TERM=xterm"_s }).contains(u"\033[32mSOFTCOVER"_s));
    QVERIFY(!git({ u"diff"_s }, 0, { u"GIT_PAGER_IN_USE=true"_s, u"TERM=xterm"_s, u"NO_COLOR=1"_s }).contains(u'\033'));
}

void tst_diff_git::exitCode_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("newFile");
    QTest::addColumn<int>("expected");
    const QStringList exitCode { u"--exit-code"_s };
    QTest::newRow("different") << QStringList() << u"new.xml"_s << 0;
    QTest::newRow("different, with --exit-code") << exitCode << u"new.xml"_s << 1;
    QTest::newRow("equal, with --exit-code") << exitCode << u"products.xml"_s << 0;
    QTest::newRow("unreadable, with --exit-code") << exitCode << u"missing.xml"_s << 1;
}

void tst_diff_git::exitCode()
{
    QFETCH(QStringList, options);
    QFETCH(QString, newFile);
    write(NEW_CATALOGUE, u"new.xml"_s);
    const QString hash(40, u'0');
    const QString mode = u"100644"_s;
    const QStringList arguments { u"products.xml"_s, u"products.xml"_s, hash, mode, newFile, hash, mode };
    const ProgramRun run = runProgram(myFolder->path(), QStringLiteral(RVCATALOG),
                                      QStringList { u"diff"_s, u"--git"_s } + options + arguments);
    QTEST(run.exitCode, "expected");
}

QTEST_GUILESS_MAIN(tst_diff_git)
#include "tst_diff_git.moc"
