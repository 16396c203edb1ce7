#ifndef SCREENSHOT_H
#define SCREENSHOT_H

#include <RVProductType.h>

#include <QObject>
#include <QTimer>

class MainWindow;
struct LoadError;

/// Takes a picture of the window once its catalogue is loaded, and compared where that was asked for, and ends the
/// program: with 0, with 1 when the catalogue has no such product, with 2 when a file cannot be read or written.
class Screenshot : public QObject
{
    Q_OBJECT

public:
    /// Without a type, of the first product.
    Screenshot(MainWindow *window, const QString &fileName, const RVProductType &type);

private:
    void take();
    void save();
    void failToLoad(const LoadError &error);
    void fail(int exitCode, const QString &text);

    MainWindow *myWindow;
    QString myFileName;
    RVProductType myType;
    QTimer myLayoutTimer;
};

#endif
