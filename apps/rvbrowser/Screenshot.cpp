#include "Screenshot.h"

#include "ComparisonActions.h"
#include "MainWindow.h"

#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QTextStream>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// For the documentation; it takes a little longer.
constexpr int SMALLEST_FILE = 0;
/// Widgets that have new texts ask for new places one after the other.
constexpr auto LAYOUT_TIME = 200ms;
constexpr int LAYOUT_ROUNDS = 20;

}

Screenshot::Screenshot(MainWindow *window, const QString &fileName, const RVProductType &type)
    : QObject(window),
      myWindow(window),
      myFileName(fileName),
      myType(type)
{
    myLayoutTimer.setSingleShot(true);
    connect(&myLayoutTimer, &QTimer::timeout, this, &Screenshot::save);
    // After the window, which shows the catalogue first.
    connect(window->session(), &CatalogueSession::catalogueChanged, this, &Screenshot::take, Qt::QueuedConnection);
    connect(window->session(), &CatalogueSession::failed, this, &Screenshot::failToLoad);
    const ComparisonSession *comparison = window->comparison()->session();
    connect(comparison, &ComparisonSession::changed, this, &Screenshot::take, Qt::QueuedConnection);
    connect(comparison, &ComparisonSession::failed, this, &Screenshot::failToLoad);
}

void Screenshot::failToLoad(const LoadError &error)
{
    const RVFilePosition position = error.position.value_or(RVFilePosition());
    fail(2, u"%1:%2:%3: %4"_s.arg(error.fileName).arg(position.line).arg(position.column).arg(error.text));
}

void Screenshot::take()
{
    if (myType.isValid() && !myWindow->showType(myType)) {
        fail(1, u"rvbrowser: the catalogue has no product of type \"%1\""_s.arg(myType.toString()));
        return;
    }
    const ComparisonSession *comparison = myWindow->comparison()->session();
    if (!comparison->isActive() || comparison->comparison())
        myLayoutTimer.start(LAYOUT_TIME);
}

void Screenshot::save()
{
    // On a machine that is busy, the time may be over before they all have asked.
    for (int round = 0; round < LAYOUT_ROUNDS; ++round)
        QApplication::processEvents();
    const QImage picture = myWindow->grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (picture.save(myFileName, "PNG", SMALLEST_FILE))
        QApplication::exit(0);
    else
        fail(2, u"rvbrowser: cannot write %1"_s.arg(myFileName));
}

void Screenshot::fail(int exitCode, const QString &text)
{
    QTextStream(stderr) << text << '\n';
    QApplication::exit(exitCode);
}
