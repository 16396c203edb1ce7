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

QTEST_MAIN(tst_LabelColumn)
#include "tst_LabelColumn.moc"
