#include "FixPlan.h"

#include "UnifiedDiff.h"

#include <QFile>
#include <QTemporaryFile>

FixPlan::FixPlan(const LoadedCatalogue &catalogue, const QList<int> &findings)
    : myFileName(catalogue.fileName()),
      myLoaded(catalogue.stamp()),
      myEditor(myFileName)
{
    for (const int finding : findings)
        myEditor.add(catalogue.findings().at(finding).fix());
}

// The editor knows the file since it was made, which was before this look at it.
bool FixPlan::isAsLoaded()
{
    return FileStamp::of(myFileName) == myLoaded
            || fail(tr("the file was changed since it was loaded; load it again with F5"));
}

bool FixPlan::prepare()
{
    if (!isAsLoaded())
        return false;
    QFile from(myFileName);
    QTemporaryFile to;
    if (!from.open(QIODevice::ReadOnly))
        return fail(tr("cannot open the file: %1").arg(from.errorString()));
    if (!to.open())
        return fail(tr("cannot write: %1").arg(to.errorString()));
    if (!myEditor.apply(&from, &to))
        return fail(myEditor.errorString());
    myDiff.clear();
    const QString error = UnifiedDiff(myFileName, to.fileName(), myFileName).write([this](QByteArrayView piece) {
        myDiff.append(piece);
    });
    return error.isEmpty() || fail(error);
}

bool FixPlan::save()
{
    return isAsLoaded() && (myEditor.save() || fail(myEditor.errorString()));
}

bool FixPlan::fail(const QString &text)
{
    myError = text;
    return false;
}
