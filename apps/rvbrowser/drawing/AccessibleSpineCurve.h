#ifndef ACCESSIBLESPINECURVE_H
#define ACCESSIBLESPINECURVE_H

#include <QAccessibleWidget>

class SpineCurve;

/// The curve for a screen reader: a slider over the page counts, whose value tells width and font size as well.
class AccessibleSpineCurve : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleSpineCurve(SpineCurve *curve);

    /// From then on Qt asks for one of these for each curve.
    static void install();

    QString text(QAccessible::Text kind) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    QVariant pages(int row) const;

    SpineCurve *myCurve; // Qt deletes this object with its widget
};

#endif
