#include "Catalogue.h"

#include <QString>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *ORIENTATIONS[] = { "portrait", "landscape", "square" };
constexpr const char *PAPERS[] = { "fotopaper", "indigo", "indigo-glossy", "premium-matt" };
constexpr const char *COLORS[] = { "#1a1a1a", "#8c1c2b", "#d8c8a8", "white", "gold" };
constexpr const char *UNITS[] = { "mm", "cm" };

template<typename Texts>
QString pick(const Texts &texts, int number)
{
    return QString::fromLatin1(texts[std::size_t(number) % std::size(texts)]);
}

QString formXml(int product, int form)
{
    return uR"(        <form key="option%1" key_name="Auswahl %1" value="value%2" value_name="Wert %2 größer" editor_name="Wert %2" name="form%1_%2" preview="preview_%3" color="%4" preselected="%5" not_accountable="%6"/>)"
           "\n"_s.arg(form / 3)
                   .arg(form)
                   .arg(product % 17)
                   .arg(pick(COLORS, product + form), form % 3 == 0 ? u"true"_s : u"false"_s,
                        form % 5 == 0 ? u"true"_s : u"false"_s);
}

QString barcodeXml(int product, int page, const QString &unit)
{
    const int millimetres = unit == "cm"_L1 ? 10 : 1;
    return uR"(        <barcode position_x="%1" position_y="%2.5" width="%3" height="%4" pageNr="%5" image="code%6.png"/>)"
           "\n"_s.arg((10 + product % 30) / millimetres)
                   .arg((100 + product % 90) / millimetres)
                   .arg((30 + product % 11) / millimetres)
                   .arg(10 / millimetres)
                   .arg(page)
                   .arg(product % 4);
}

/// A width at which a book can be bound, in any unit.
QString spineXml(int product)
{
    const QString unit = pick(UNITS, product);
    const bool isCentimetres = unit == "cm"_L1;
    return uR"(      <composition units="%1"><spine packages_per_block="%2" base_width="%3" block_width="%4" additional_width="0.25"/></composition>)"
           "\n"_s.arg(unit, QString::number(product % 3 + 1),
                      isCentimetres ? u"0.%1"_s.arg(product % 8 + 1) : u"%1.5"_s.arg(product % 8 + 1),
                      isCentimetres ? u"0.0%1"_s.arg(product % 9 + 1) : u"0.%1"_s.arg(product % 9 + 1));
}

}

QByteArray productXml(int number, int forms)
{
    const int lowest = 18 + number % 9 * 2;
    const int step = 2 + number % 3 * 2;
    QString result =
            uR"(    <product type="DUN%1_30" article_id="%2" name="Fotobuch Groß %1" article_class="book" cover_type="HARDCOVER" page_binding="glue" paper_type="%3" orientation="%4" space_magnitude="600cm2" shipping_group="2" price_class="PXB%1" pieces="1" pages="%5" max_pages="%6" page_step="%7">)"
            "\n"_s.arg(number + 1)
                    .arg(1000 + number)
                    .arg(pick(PAPERS, number), pick(ORIENTATIONS, number))
                    .arg(lowest)
                    .arg(lowest + step * (20 + number % 13))
                    .arg(step);
    const QString unit = pick(UNITS, number / 2);
    result += u"      <barcodes units=\"%1\">\n"_s.arg(unit);
    result += barcodeXml(number, 1, unit) + barcodeXml(number + 5, 2, unit) + u"      </barcodes>\n"_s;
    result += spineXml(number);
    result += u"      <forms>\n"_s;
    for (int form = 0; form < forms; ++form)
        result += formXml(number, form);
    return (result + u"      </forms>\n    </product>\n"_s).toUtf8();
}

QByteArray catalogueXml(int products, int forms)
{
    QByteArray result = CATALOGUE_HEAD;
    for (int number = 0; number < products; ++number)
        result += productXml(number, forms);
    return result + CATALOGUE_FOOT;
}
