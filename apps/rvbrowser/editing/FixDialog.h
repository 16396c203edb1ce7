#ifndef FIXDIALOG_H
#define FIXDIALOG_H

#include "FixPlan.h"

#include <QDialog>

#include <memory>

/// Shows what fixes would change in a file, and makes the change if the user wants it.
class FixDialog : public QDialog
{
    Q_OBJECT

public:
    /// The plan is prepared.
    FixDialog(std::unique_ptr<FixPlan> plan, QWidget *parent);

    void accept() override;

Q_SIGNALS:
    void applied(int fixes);
    /// Nothing was changed, because of this.
    void failed(const QString &text);

private:
    QString heading() const;
    /// The diff, cut off behind a line if it is too long to be read.
    QByteArray shownDiff() const;

    std::unique_ptr<FixPlan> myPlan;
};

#endif
