#include "RVProductChange.h"

#include <QSharedData>

using namespace Qt::StringLiterals;

class RVProductChangeData : public QSharedData
{
public:
    RVProductChangeData(QLatin1StringView subject_, const QString &label_, const RVComparedValue &oldValue_,
                        const RVComparedValue &newValue_, const QJsonObject &item_)
        : subject(subject_),
          label(label_),
          oldValue(oldValue_),
          newValue(newValue_),
          item(item_)
    { }

    QLatin1StringView subject;
    QString label;
    RVComparedValue oldValue;
    RVComparedValue newValue;
    QJsonObject item;
};

QLatin1StringView rvChangeKindName(RVChangeKind kind)
{
    switch (kind) {
    case RVChangeKind::Added:
        return "added"_L1;
    case RVChangeKind::Removed:
        return "removed"_L1;
    case RVChangeKind::Changed:
        return "changed"_L1;
    case RVChangeKind::None:
        break;
    }
    return "equal"_L1;
}

RVProductChange::RVProductChange() = default;

RVProductChange::RVProductChange(QLatin1StringView subject, const QString &label, const RVComparedValue &oldValue,
                                 const RVComparedValue &newValue, const QJsonObject &item)
    : d(new RVProductChangeData(subject, label, oldValue, newValue, item))
{ }

RVProductChange::RVProductChange(const RVProductChange &other) = default;
RVProductChange::RVProductChange(RVProductChange &&other) noexcept = default;
RVProductChange &RVProductChange::operator=(const RVProductChange &other) = default;
RVProductChange &RVProductChange::operator=(RVProductChange &&other) noexcept = default;
RVProductChange::~RVProductChange() = default;

RVChangeKind RVProductChange::kind() const
{
    if (!d || (d->oldValue.value.isNull() && d->newValue.value.isNull()))
        return RVChangeKind::None;
    if (d->oldValue.value.isNull())
        return RVChangeKind::Added;
    return d->newValue.value.isNull() ? RVChangeKind::Removed : RVChangeKind::Changed;
}

QLatin1StringView RVProductChange::subject() const
{
    return d ? d->subject : QLatin1StringView();
}

QJsonObject RVProductChange::item() const
{
    return d ? d->item : QJsonObject();
}

QString RVProductChange::label() const
{
    return d ? d->label : QString();
}

RVComparedValue RVProductChange::oldValue() const
{
    return d ? d->oldValue : RVComparedValue();
}

RVComparedValue RVProductChange::newValue() const
{
    return d ? d->newValue : RVComparedValue();
}
