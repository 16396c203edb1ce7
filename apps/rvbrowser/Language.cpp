#include "Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>

using namespace Qt::StringLiterals;

namespace {

bool isSpoken(QLocale::Language language)
{
    return language == QLocale::German || language == QLocale::English;
}

void load(QTranslator *translator, const QString &name, const QString &folder)
{
    if (translator->load(u"%1/%2_%3"_s.arg(folder, name, QLocale().name())))
        QCoreApplication::installTranslator(translator);
}

}

void Language::speak(const QLocale &locale)
{
    QLocale::setDefault(isSpoken(locale.language()) ? locale : QLocale(QLocale::English));
    load(&myQt, u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    load(&myLibrary, u"rvproductbase"_s, u":/translations"_s);
    load(&myCatalogue, u"rvcatalogue"_s, u":/translations"_s);
    load(&myPlot, u"rvplot"_s, u":/translations"_s);
    load(&myProgram, u"rvbrowser"_s, u":/translations"_s);
}
