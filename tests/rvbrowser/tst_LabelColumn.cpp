#include <LabelColumn.h>

#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

class tst_LabelColumn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aligns();
};

void tst_LabelColumn::aligns()
{
    QWidget window;
    auto *rows = new QVBoxLayout(&window);
    auto *form = new QFormLayout;
    auto *grid = new QGridLayout;
    auto *other = new QHBoxLayout;
    for (QLayout *panel : std::initializer_list<QLayout *> { form, grid, other })
        rows->addLayout(panel);
    auto *first = new QLabel(u"short"_s);
    auto *second = new QLabel(u"a longer label"_s);
    auto *hidden = new QLabel(u"the longest label of all, which is hidden"_s);
    auto *heading = new QLabel(u"a heading that reaches over both columns of the grid"_s);
    auto *beside = new QLabel(u"x"_s);
    form->addRow(first, new QLabel(u"field"_s));
    grid->addWidget(heading, 0, 0, 1, 2);
    grid->addWidget(second, 1, 0);
    grid->addWidget(new QLabel(u"field"_s), 1, 1);
    grid->addWidget(hidden, 2, 0);
    grid->setColumnStretch(1, 1);
    other->addWidget(beside);
    hidden->hide();

    LabelColumn column;
    for (QLayout *panel : std::initializer_list<QLayout *> { form, grid, other })
        column.add(panel);
    column.align();
    const int widest = second->sizeHint().width();
    QCOMPARE(first->minimumWidth(), widest);
    QCOMPARE(second->minimumWidth(), widest);
    QCOMPARE(beside->minimumWidth(), 0);
    QCOMPARE(heading->minimumWidth(), 0);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(first->width(), second->width());
    second->setText(u"a"_s); // columns become narrow again
    column.align();
    QVERIFY(first->minimumWidth() < widest);
    hidden->show();
    column.align();
    QVERIFY(first->minimumWidth() > widest);
}

QTEST_MAIN(tst_LabelColumn)
#include "tst_LabelColumn.moc"
