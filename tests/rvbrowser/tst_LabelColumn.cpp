#include <LabelColumn.h>

#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// Three panels above each other, with labels in front of fields.
struct Panels
{
    Panels()
    {
        auto *rows = new QVBoxLayout(&window);
        auto *form = new QFormLayout;
        auto *grid = new QGridLayout;
        auto *other = new QHBoxLayout;
        for (QLayout *panel : std::initializer_list<QLayout *> { form, grid, other }) {
            rows->addLayout(panel);
            column.add(panel);
        }
        form->addRow(first, new QLabel(u"field"_s));
        form->addRow(new QLabel(u"a line of its own that has no label at all"_s));
        grid->addWidget(heading, 0, 0, 1, 2);
        grid->addWidget(second, 1, 0);
        grid->addWidget(new QLabel(u"field"_s), 1, 1);
        grid->addWidget(hidden, 2, 0);
        grid->setColumnStretch(1, 1);
        other->addWidget(beside);
        hidden->hide();
    }

    QWidget window;
    LabelColumn column;
    QLabel *first = new QLabel(u"short"_s);
    QLabel *second = new QLabel(u"a longer label"_s);
    QLabel *hidden = new QLabel(u"the longest label of all, which is hidden"_s);
    QLabel *heading = new QLabel(u"a heading that reaches over both columns of the grid"_s);
    QLabel *beside = new QLabel(u"x"_s);
};

}

class tst_LabelColumn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aligns();
    void countsEdgesAndKeys_data();
    void countsEdgesAndKeys();
    void alignsFields();
};

void tst_LabelColumn::aligns()
{
    Panels panels;
    panels.column.align();
    const int widest = panels.second->sizeHint().width();
    QCOMPARE(panels.first->minimumWidth(), widest);
    QCOMPARE(panels.second->minimumWidth(), widest);
    QCOMPARE(panels.beside->minimumWidth(), 0);
    QCOMPARE(panels.heading->minimumWidth(), 0);
    panels.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panels.window));
    QCOMPARE(panels.first->width(), panels.second->width());
    panels.second->setText(u"a"_s); // columns become narrow again
    panels.column.align();
    QVERIFY(panels.first->minimumWidth() < widest);
    panels.hidden->show();
    panels.column.align();
    QVERIFY(panels.first->minimumWidth() > widest);
}

void tst_LabelColumn::countsEdgesAndKeys_data()
{
    QTest::addColumn<bool>("hasKey");
    QTest::addColumn<QString>("text");

    QTest::newRow("key") << true << u"&Label"_s;
    QTest::newRow("ampersands") << false << u"&&&Label"_s;
}

// An ampersand that marks the key of a label takes no room.
void tst_LabelColumn::countsEdgesAndKeys()
{
    QFETCH(bool, hasKey);
    QFETCH(QString, text);
    QWidget window;
    auto *grid = new QGridLayout(&window);
    auto *label = new QLabel(u"&&&Label"_s);
    auto *field = new QLabel(u"field"_s);
    if (hasKey)
        label->setBuddy(field);
    label->setContentsMargins(7, 0, 11, 0);
    grid->addWidget(label, 0, 0);
    grid->addWidget(field, 0, 1);
    LabelColumn column;
    column.add(grid);
    column.align();
    const int width = label->fontMetrics().horizontalAdvance(text) + 18;
    QVERIFY2(qAbs(label->minimumWidth() - width) <= 2, qPrintable(u"%1 %2"_s.arg(label->minimumWidth()).arg(width)));
}

// The first column may hold other controls, and places that are empty or hidden.
void tst_LabelColumn::alignsFields()
{
    QWidget window;
    auto *rows = new QVBoxLayout(&window);
    auto *grid = new QGridLayout;
    rows->addLayout(grid);
    auto *control = new QWidget;
    control->setMinimumWidth(30);
    auto *label = new QLabel(u"a long label of the first row"_s);
    grid->addWidget(label, 0, 0);
    grid->addWidget(new QLabel(u"field"_s), 0, 1);
    grid->addWidget(new QLabel(u"a field without a label that is wider than all"_s), 1, 1);
    grid->addLayout(new QVBoxLayout, 2, 0);
    grid->addWidget(control, 3, 0);
    LabelColumn column;
    column.add(grid);
    column.align();
    QCOMPARE(label->minimumWidth(), label->sizeHint().width());
    QCOMPARE(control->minimumWidth(), label->minimumWidth());
}

QTEST_MAIN(tst_LabelColumn)
#include "tst_LabelColumn.moc"
