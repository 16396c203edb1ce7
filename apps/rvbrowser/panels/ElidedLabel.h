#ifndef ELIDEDLABEL_H
#define ELIDEDLABEL_H

#include <QLabel>

#include <optional>

/// One line of plain text, which may be longer than there is room; then it ends in "…", and a tool tip has all of it.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(const QString &text, QWidget *parent = nullptr);

    /// Asks for no more room than this many characters of usual width need. There is no limit without it.
    void setMostCharacters(int characters) { myMostCharacters = characters; }
    /// Asks for the room that @p text needs instead of that of its own text, so that several labels have one width.
    void setUsualText(const QString &text) { myUsualText = text; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isElided() const { return QLabel::sizeHint().width() > width(); }

    std::optional<int> myMostCharacters;
    QString myUsualText;
};

#endif
