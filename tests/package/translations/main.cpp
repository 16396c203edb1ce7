// Speaks the languages of an installation, wherever it was moved.
#include <RVCatalogue/RVCatalogueAttribute.h>
#include <RVCatalogue/RVCatalogueTranslation.h>
#include <RVProductBase/RVDlpType.h>
#include <RVProductBase/RVTranslation.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const bool withoutApplication = RVTranslation::install(QLocale(QLocale::English));
    QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    const RVDlpType background(DLP_TYPE_BACKGROUND);
    out << withoutApplication << '\n';
    out << RVTranslation::install(QLocale(QLocale::English)) << ' ' << background.visibleName(2) << '\n';
    out << RVTranslation::install(QLocale(QLocale::German)) << ' ' << background.visibleName(1) << '\n';
    out << RVTranslation::install(QLocale(QLocale::French)) << ' ' << background.visibleName(1) << '\n';
    RVTranslation::remove();
    out << background.visibleName(1) << '\n';
    out << RVCatalogueTranslation::install(QLocale(QLocale::German)) << ' '
        << RVCatalogueAttribute::find("cover_type").label() << '\n';
    out << RVCatalogueTranslation::install(QLocale(QLocale::English)) << '\n';
    RVCatalogueTranslation::remove();
    out << RVCatalogueAttribute::find("cover_type").label() << '\n';
    return 0;
}
