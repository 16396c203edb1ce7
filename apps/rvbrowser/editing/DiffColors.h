#ifndef DIFFCOLORS_H
#define DIFFCOLORS_H

#include <QSyntaxHighlighter>
#include <QTextCharFormat>

class QPalette;

/// Colours the lines of a unified diff: those that go, those that come, and their places.
class DiffColors : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    DiffColors(QTextDocument *document, const QPalette &palette);

protected:
    void highlightBlock(const QString &text) override;

private:
    QTextCharFormat myOld;
    QTextCharFormat myNew;
    QTextCharFormat myPlace;
};

#endif
