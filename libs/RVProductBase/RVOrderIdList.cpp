#include "RVOrderIdList.h"

#include "RVKomma_p.h"

#include <QStringList>

QString RVOrderIdList::toString() const
{
    QStringList texts;
    for (const RVOrderId &id : *this) {
        if (id.isValid())
            texts += id.toString();
    }
    return texts.join(KOMMA);
}
