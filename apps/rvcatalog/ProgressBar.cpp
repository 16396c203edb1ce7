#include "ProgressBar.h"

#include "Console.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

ProgressBar::ProgressBar(std::FILE *terminal) : myTerminal(terminal), myHasTerminal(isTerminal(terminal))
{
    mySinceStart.start();
}

void ProgressBar::show(const QString &fileName, qint64 done, qint64 total)
{
    constexpr qint64 patience = 1000;
    constexpr qint64 interval = 100;
    constexpr int width = 30;
    if (!myHasTerminal || mySinceStart.elapsed() < patience || (myIsShown && mySinceShown.elapsed() < interval))
        return;
    QString text = u"%1 MB"_s.arg(done / 1000000);
    if (total > 0) {
        const int filled = int(qMin(done, total) * width / total);
        text = u"[%1%2] %3 %"_s.arg(QString(filled, u'#'), QString(width - filled, u'.'),
                                    QString::number(qMin(done, total) * 100 / total));
    }
    QTextStream(myTerminal) << "\r\033[K" << text << ' ' << fileName;
    myIsShown = true;
    mySinceShown.start();
}

void ProgressBar::hide()
{
    if (myIsShown)
        QTextStream(myTerminal) << "\r\033[K";
    myIsShown = false;
}
