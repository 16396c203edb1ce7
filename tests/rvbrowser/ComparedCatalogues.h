#ifndef COMPAREDCATALOGUES_H
#define COMPAREDCATALOGUES_H

#include <LoadedComparison.h>

#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QByteArray>

/// Two catalogues, of which something was added, removed, changed and renamed, one product a line.
inline constexpr char OLD_CATALOGUE[] =
        "<products>\n"
        "<product type='A' article_id='1' name='Album' article_class='book' cover_type='softcover' price_class='K1'/>\n"
        "<product type='B' article_id='2' name='Becher'/>\n"
        "<product type='C' article_id='3' name='Kalender' pages='13'/>\n"
        "<product type='D' article_id='4' name='Druck'/>\n"
        "</products>\n";
inline constexpr char NEW_CATALOGUE[] =
        "<products>\n"
        "<product type='E' article_id='5' name='Etikett'/>\n"
        "<product type='A' article_id='1' name='Album' article_class='book' cover_type='hardcover' price_class='K2'/>\n"
        "<product type='C2' article_id='3' name='Kalender' pages='13'/>\n"
        "<product type='D' article_id='4' name='Druck'/>\n"
        "</products>\n";

inline ComparisonPointer compared(QByteArray before, QByteArray after)
{
    QBuffer oldFile(&before);
    QBuffer newFile(&after);
    oldFile.open(QIODevice::ReadOnly);
    newFile.open(QIODevice::ReadOnly);
    RVCatalogueReader oldReader(&oldFile);
    RVCatalogueReader newReader(&newFile);
    RVCatalogueComparison differences(&oldReader, &newReader);
    const ComparedFiles files { { QStringLiteral("old.xml"), QString() }, { QStringLiteral("new.xml"), QString() } };
    const auto result = std::make_shared<LoadedComparison>(files);
    for (auto product = differences.next(); !product.isNull(); product = differences.next())
        result->append(product);
    result->finish(differences.counts());
    return result;
}

#endif
