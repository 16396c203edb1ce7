#ifndef LOADPROGRESS_H
#define LOADPROGRESS_H

#include <QWidget>

class QLabel;
class QProgressBar;

/// How far the loading of a file has come, with a button to give it up. Hidden while nothing is loaded.
class LoadProgress : public QWidget
{
    Q_OBJECT

public:
    explicit LoadProgress(QWidget *parent = nullptr);

    void start(const QString &fileName);
    void setPercent(int percent);

Q_SIGNALS:
    void cancelRequested();

private:
    QLabel *myText;
    QProgressBar *myBar;
};

#endif
