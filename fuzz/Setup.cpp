#include <QHashFunctions>
#include <QString>
#include <QtGlobal>

namespace {

// The library reports texts that it cannot read, which are most inputs of a fuzzer.
void swallow(QtMsgType, const QMessageLogContext &, const QString &) { }

}

// A fixed hash seed makes an input behave the same in every run, also where the order of a hash matters.
extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    QHashSeed::setDeterministicGlobalSeed();
    qInstallMessageHandler(swallow);
    return 0;
}
