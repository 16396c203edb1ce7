// Typing into the search line of the window with 100,000 products, key by key and painted, compared with a filter of
// Qt.
#include "Comparison.h"

#include <LoadedCatalogue.h>
#include <ProductList.h>

#include <RVCatalogueReader.h>

#include <QApplication>
#include <QBuffer>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QStringListModel>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int PRODUCTS = 100000;

/// The text of the search line after each key, and then back to an empty line, which shows all products again.
QStringList keyPresses()
{
    QStringList result;
    for (const QString &search : { u"t1999"_s, u"hardcover 77"_s, u"buch ü"_s }) {
        for (qsizetype length = 1; length <= search.size(); ++length)
            result += search.left(length);
        result += QString();
    }
    return result;
}

QString productName(int number)
{
    return u"Großes Buch %1 für Übergrößen"_s.arg(number);
}

QByteArray catalogue()
{
    QByteArray result("<products>\n");
    for (int i = 0; i < PRODUCTS; ++i)
        result += u"<product type='T%1' article_id='%2' article_class='book' cover_type='hardcover' name='%3'/>\n"_s
                          .arg(i)
                          .arg(i + 1)
                          .arg(productName(i))
                          .toUtf8();
    return result + "</products>\n";
}

/// The list of the window.
class Ours
{
    Q_DISABLE_COPY_MOVE(Ours)

public:
    Ours()
    {
        QByteArray content = catalogue();
        QBuffer buffer(&content);
        buffer.open(QIODevice::ReadOnly);
        RVCatalogueReader reader(&buffer);
        auto loaded = std::make_shared<LoadedCatalogue>(QString());
        loaded->read(&reader);
        myList.resize(400, 800);
        myList.show();
        myList.setCatalogue(loaded);
        mySearch = myList.findChild<QLineEdit *>(u"search"_s);
    }

    bool type(const QString &search)
    {
        mySearch->setText(search);
        QApplication::processEvents();
        return myList.firstProduct() >= 0;
    }

private:
    ProductList myList;
    QLineEdit *mySearch;
};

/// A list of the same texts with Qt's filter, which does not handle words and umlauts.
class Peer
{
    Q_DISABLE_COPY_MOVE(Peer)

public:
    Peer()
    {
        QStringList texts;
        for (int i = 0; i < PRODUCTS; ++i)
            texts += u"T%1 %2 Photo book HARDCOVER %3"_s.arg(i).arg(i + 1).arg(productName(i));
        myModel.setStringList(texts);
        myFilter.setSourceModel(&myModel);
        myFilter.setFilterCaseSensitivity(Qt::CaseInsensitive);
        myView.setUniformItemSizes(true);
        myView.setModel(&myFilter);
        myView.resize(400, 800);
        myView.show();
    }

    bool type(const QString &search)
    {
        const QStringList words = search.split(u' ', Qt::SkipEmptyParts);
        myFilter.setFilterFixedString(words.value(0));
        QApplication::processEvents();
        return myFilter.rowCount() > 0;
    }

private:
    QStringListModel myModel;
    QSortFilterProxyModel myFilter;
    QListView myView;
};

/// The program ends without destroying the application, because its widgets must not outlive it.
void startApplication()
{
    static int argc = 1;
    static char name[] = "bench_search";
    static char *argv[] = { name, nullptr };
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(argc, argv);
}

}

void addBenchmarks()
{
    startApplication();
    auto *ours = new Ours;
    auto *peer = new Peer;
    const auto typeOurs = [ours](const QString &search) { return ours->type(search); };
    const auto typePeer = [peer](const QString &search) { return peer->type(search); };
    Comparison("search", keyPresses(), typeOurs).against("proxy", typePeer);
    // The slowest keys: each product is found, and shown again.
    Comparison("search_all", QStringList { u"t"_s, QString() }, typeOurs).against("proxy", typePeer);
}
