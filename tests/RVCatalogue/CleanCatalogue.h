#ifndef CLEANCATALOGUE_H
#define CLEANCATALOGUE_H

#include <QByteArray>
#include <QList>
#include <QRandomGenerator>

/// Generates products without findings, as different print houses write them: with foreign attributes and elements, and
/// names with prefixes.
class CleanCatalogue
{
public:
    explicit CleanCatalogue(quint32 seed) : myRandom(seed) { }

    QByteArray catalogue(int products)
    {
        QByteArray result = "<products xmlns:shop='urn:shop' version='2'>\n";
        for (int i = 1; i <= products; ++i) {
            const bool hasFamily = below(3) == 0;
            result += hasFamily ? "<family name='a' sort='" + QByteArray::number(i) + "'>" : QByteArray();
            result += product(i) + (hasFamily ? "</family>\n" : "\n");
            result += below(4) == 0 ? one(STRAYS) : QByteArray();
        }
        return result + "</products>\n";
    }

private:
    using Texts = QList<QByteArray>;

    static inline const Texts STRAYS = { "<!-- a -->", "<note>b</note>", "<shop:family/>",
                                         "<defaults><forms/></defaults>", "<offer><x/></offer>" };
    static inline const Texts FOREIGN_ATTRIBUTES = { "sku='1'",       "min_stock='3'",      "shop:page='1'",
                                                     "weight='12'",   "created_by='x'",     "supplier_code='y'",
                                                     "xml:lang='de'", "min_pages='4'",      "hidden='false'",
                                                     "shop:type='z'", "page_type='normal'", "vat='7'",
                                                     "name2='x'",     "tags_de='a, b'",     "launch='2026-01'" };
    static inline const Texts FOREIGN_ELEMENTS = { "<description>a</description>",
                                                   "<shop:stock value='1'/>",
                                                   "<images><image src='a.png' width='3' units='px'/></images>",
                                                   "<seo><form/><product/></seo>",
                                                   "<prices><price value='1'/></prices>",
                                                   "text &amp; more" };
    static inline const Texts COVERS = { "hardcover", "SOFTCOVER", "leather", "booklet", "CROMOLINEN" };
    static inline const Texts SIZES = {
        "150cm2", "310CM2", "400cm2", "600cm2", "900cm2", "1200cm2", "2400cm2", "normal"
    };
    static inline const Texts ORIENTATIONS = { "portrait", "landscape", "square", "portrait, square", "all" };
    static inline const Texts VALUES = {
        "black", "red", "none", "notAccountable", "gold-matt", "größe_2", "4x6", "A5"
    };

    int below(qsizetype limit) { return myRandom.bounded(int(limit)); }
    const QByteArray &one(const Texts &texts) { return texts.at(below(texts.size())); }
    QByteArray foreign(int mostOf)
    {
        QByteArray result;
        QList<QByteArray> used;
        for (int i = below(mostOf + 1); i > 0; --i) {
            const QByteArray &attribute = one(FOREIGN_ATTRIBUTES);
            if (!used.contains(attribute))
                result += ' ' + attribute;
            used += attribute;
        }
        return result;
    }
    QByteArray foreignElement() { return below(4) == 0 ? one(FOREIGN_ELEMENTS) : QByteArray(); }

    QByteArray product(int number)
    {
        const QByteArray id = QByteArray::number(number);
        const bool isBound = below(2) == 0;
        QByteArray result = "<product type='T" + id + "' article_id='" + id + "' article_class='book' cover_type='"
                + one(COVERS) + "' orientation='" + one(ORIENTATIONS) + "' space_magnitude='" + one(SIZES) + "' "
                + pages() + foreign(3) + (isBound ? " page_binding='glue'>" : ">");
        result += foreignElement() + (below(2) == 0 ? barcodes() : QByteArray()) + foreignElement();
        result += (isBound || below(4) == 0 ? composition() : QByteArray()) + foreignElement();
        return result + (below(3) > 0 ? forms() : QByteArray()) + foreignElement() + "</product>";
    }

    QByteArray pages()
    {
        static const Texts counts = { "pages='26' max_pages='154' page_step='4'",
                                      "pages='20'",
                                      "pages='2' pieces='10'",
                                      "pages='24' max_pages='24' page_step='0'",
                                      "photo_box='true' pages='10' max_pages='500'",
                                      "photo_box='1' page_step='1'",
                                      "pages='1' max_pages='1000' page_step='1'" };
        return one(counts);
    }

    QByteArray barcodes()
    {
        QByteArray result = "<barcodes units='mm'" + foreign(1) + '>' + foreignElement();
        for (int i = below(3); i >= 0; --i)
            result += "<barcode position_x='" + QByteArray::number(2 + 40 * i)
                    + "' position_y='60' width='38' height='10' pageNr='1'" + foreign(1) + "/>";
        return result + "</barcodes>";
    }

    QByteArray composition()
    {
        static const Texts spines = { "base_width='8'", "base_width='8' additional_width='0.5'",
                                      "packages_per_block='4' base_width='3' block_width='0.2' additional_width='1'",
                                      "packages_per_block='0' base_width='8' block_width='1'" };
        return "<composition units='mm'" + foreign(1) + '>' + foreignElement() + "<spine " + one(spines) + foreign(1)
                + "/></composition>";
    }

    QByteArray forms()
    {
        QByteArray result = "<forms" + foreign(1) + '>' + foreignElement();
        for (int key = below(3); key >= 0; --key) {
            const QByteArray name = QByteArray("key") + char('a' + key);
            for (int i = 0; i <= below(VALUES.size()); ++i)
                result += "<form key='" + name + "' key_name='" + name.toUpper() + "' value='" + VALUES.at(i) + '\''
                        + (i == 0 ? " preselected='true'" : "") + foreign(1) + "/>" + foreignElement();
        }
        return result + "</forms>";
    }

    QRandomGenerator myRandom;
};

#endif
