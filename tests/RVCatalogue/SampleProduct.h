#ifndef SAMPLEPRODUCT_H
#define SAMPLEPRODUCT_H

#include <QByteArray>

/// A catalogue without findings, with each element on its own line.
constexpr char CLEAN_CATALOGUE[] =
        "<products>\n"
        "<product type='DUN9' article_id='1' article_class='book' cover_type='hardcover' page_binding='glue' "
        "paper_type='fotopaper' orientation='portrait' space_magnitude='600cm2' shipping_group='2' "
        "price_class='PXB9' page_price_class='RODA6x9' pages='26' max_pages='154' page_step='4' pieces='1'>\n"
        "<barcodes units='mm'>\n"
        "<barcode position_x='12' position_y='290.5' width='38' height='10' pageNr='2'/>\n"
        "<barcode position_x='62' position_y='290.5' width='38' height='10' pageNr='2' image='a.png'/>\n"
        "</barcodes>\n"
        "<composition units='cm'>\n"
        "<spine packages_per_block='2' base_width='0.8' block_width='0.1' additional_width='0.05'/>\n"
        "</composition>\n"
        "<forms>\n"
        "<form key='alcolor' value='black' color='#1a1a1a' preselected='true' price_class='LEZ1'/>\n"
        "<form key='alcolor' value='red' color='red' price_class='LEZ2'/>\n"
        "<form key='a;b' value='x;y' preselected='yes' not_accountable='true'/>\n"
        "<form key='a;b' value='v;w' price_class='0'/>\n"
        "</forms>\n"
        "</product>\n"
        "<product type='FOT1' article_id='2' article_class='foto' foto_paper_type='matt'/>\n"
        "</products>\n";

/// The clean catalogue with one change; empty if it has this piece not exactly once.
inline QByteArray changed(const QByteArray &from, const QByteArray &to)
{
    const QByteArray clean = CLEAN_CATALOGUE;
    return clean.count(from) == 1 ? QByteArray(clean).replace(from, to) : QByteArray();
}

#endif
