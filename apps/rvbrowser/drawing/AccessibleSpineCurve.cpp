#include "AccessibleSpineCurve.h"

#include "SpineCurve.h"

namespace {

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *curve = qobject_cast<SpineCurve *>(object);
    return curve ? new AccessibleSpineCurve(curve) : nullptr;
}

}

AccessibleSpineCurve::AccessibleSpineCurve(SpineCurve *curve)
    : QAccessibleWidget(curve, QAccessible::Slider),
      myCurve(curve)
{ }

// Installing a function once more changes nothing.
void AccessibleSpineCurve::install()
{
    QAccessible::installFactory(makeInterface);
}

QString AccessibleSpineCurve::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? myCurve->reading() : QAccessibleWidget::text(kind);
}

void *AccessibleSpineCurve::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QVariant AccessibleSpineCurve::currentValue() const
{
    return pages(myCurve->row());
}

void AccessibleSpineCurve::setCurrentValue(const QVariant &value)
{
    const int row = myCurve->table().rowNear(value.toReal());
    if (row >= 0)
        Q_EMIT myCurve->rowWanted(row);
}

QVariant AccessibleSpineCurve::maximumValue() const
{
    return pages(myCurve->table().rowCount() - 1);
}

QVariant AccessibleSpineCurve::minimumValue() const
{
    return pages(0);
}

QVariant AccessibleSpineCurve::minimumStepSize() const
{
    const SpineTable &table = myCurve->table();
    return table.rowCount() < 2 ? 0 : table.row(1).pages - table.row(0).pages;
}

QVariant AccessibleSpineCurve::pages(int row) const
{
    const SpineTable &table = myCurve->table();
    return row < 0 || row >= table.rowCount() ? 0 : table.row(row).pages;
}
