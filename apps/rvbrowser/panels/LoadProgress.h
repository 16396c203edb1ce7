#ifndef LOADPROGRESS_H
#define LOADPROGRESS_H

#include <QWidget>

class QLabel;
class QProgressBar;

/// The progress of reading files, with a button to give it up. Hidden while nothing is read.
class LoadProgress : public QWidget
{
    Q_OBJECT

public:
    /// The button is called @p name with "Cancel" behind it.
    explicit LoadProgress(const QString &name, QWidget *parent = nullptr);

    /// Shows that a file is being loaded.
    void start(const QString &fileName);
    /// Shows that the files are being compared.
    void start(const QString &oldFileName, const QString &newFileName);
    void setPercent(int percent);

Q_SIGNALS:
    void cancelRequested();

private:
    void startWith(const QString &text);

    QLabel *myText;
    QProgressBar *myBar;
};

#endif
