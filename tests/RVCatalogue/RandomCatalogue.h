#ifndef RANDOMCATALOGUE_H
#define RANDOMCATALOGUE_H

#include <RVCatalogueAttribute.h>

#include <QList>
#include <QRandomGenerator>
#include <QString>

using namespace Qt::StringLiterals;

/// Generates products with valid and invalid attributes.
class RandomCatalogue
{
public:
    explicit RandomCatalogue(quint32 seed) : myRandom(seed) { }

    QString product()
    {
        static const QStringList texts = { u"type"_s, u"name"_s, u"price_class"_s, u"page_price_class"_s, u"foo"_s };
        static const QStringList keywordLists = [] {
            QStringList names;
            for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::ofProducts())
                names += attribute.name();
            return names;
        }();
        static const QStringList numbers = { u"article_id"_s, u"shipping_group"_s, u"pages"_s,
                                             u"max_pages"_s,  u"page_step"_s,      u"pieces"_s };
        QString result = u"<product"_s + attributes(texts, TEXTS) + attributes(keywordLists, KEYWORDS)
                + attributes(numbers, NUMBERS) + attributes({ u"photo_box"_s }, BOOLEANS) + u'>';
        for (int i = below(5); i > 0; --i)
            result += part();
        return result + u"</product>"_s;
    }

private:
    static inline const QStringList TEXTS = {
        u""_s, u"DUN9_30"_s, u"VIR29"_s, u"a &lt; &quot;b\\"_s, u"Groß \U0001F4D5"_s, u" x&#9;&#10;"_s, u"KUR2"_s
    };
    static inline const QStringList KEYWORDS = { u""_s,         u"book"_s,     u"premiumfoto"_s, u"hard"_s,
                                                 u"glue"_s,     u"lay_flat"_s, u"A4"_s,          u" A5 ,xl"_s,
                                                 u"matt"_s,     u"portrait"_s, u"spiral"_s,      u"nonsense"_s,
                                                 u"HARDCOVER"_s };
    static inline const QStringList NUMBERS = { u"0"_s,    u"1"_s,   u"26"_s,         u"154"_s,        u"4"_s,
                                                u"-4"_s,   u" 8 "_s, u"+7"_s,         u"1e3"_s,        u"0x10"_s,
                                                u"2,5"_s,  u""_s,    u"2147483647"_s, u"2147483648"_s, u"-2147483648"_s,
                                                u"many"_s, u"٣"_s };
    static inline const QStringList LENGTHS = { u"0"_s,     u"0.5"_s, u"8"_s,     u"38"_s,  u"290.5"_s,
                                                u"-3"_s,    u"1e9"_s, u"1e400"_s, u"nan"_s, u"inf"_s,
                                                u" 2.25"_s, u"0,5"_s, u""_s,      u".25"_s, u"12.345678901234567"_s };
    static inline const QStringList BOOLEANS = { u"true"_s, u"false"_s, u"TRUE"_s, u"1"_s,     u"0"_s,
                                                 u"on"_s,   u"oFf"_s,   u""_s,     u" true"_s, u"maybe"_s };
    static inline const QStringList UNITS = { u"mm"_s, u"cm"_s, u"inch"_s, u"pt"_s, u"0.1mm"_s, u""_s, u"MM"_s };
    static inline const QStringList KEYS = { u"alcolor"_s, u"spiral"_s, u"a;b"_s, u""_s };
    static inline const QStringList VALUES = { u"red"_s, u"black"_s, u"none"_s, u"x;y"_s, u""_s };

    static inline const QStringList COLORS = { u"#8c1c2b"_s, u"white"_s, u"#8c1"_s, u""_s, u"no colour"_s };

    int below(qsizetype limit) { return myRandom.bounded(int(limit)); }
    const QString &one(const QStringList &list) { return list.at(below(list.size())); }

    /// A random selection with most of the attributes.
    QString attributes(const QStringList &names, const QStringList &values)
    {
        QString result;
        for (const QString &name : names) {
            if (below(4) > 0)
                result += u' ' + name + u"=\""_s + one(values) + u'"';
        }
        return result;
    }

    QString element(const QString &name, const QString &attributes, const QString &content)
    {
        return u'<' + name + attributes + u'>' + content + u"</"_s + name + u'>';
    }

    QString barcodes()
    {
        QString result;
        for (int i = below(4); i > 0; --i)
            result += element(u"barcode"_s,
                              attributes({ u"position_x"_s, u"position_y"_s, u"width"_s, u"height"_s }, LENGTHS)
                                      + attributes({ u"pageNr"_s }, NUMBERS) + attributes({ u"image"_s }, TEXTS),
                              QString());
        return element(u"barcodes"_s, attributes({ u"units"_s }, UNITS), result + u"<!-- a --><x/>"_s);
    }

    QString composition()
    {
        return element(u"composition"_s, attributes({ u"units"_s }, UNITS),
                       element(u"spine"_s,
                               attributes({ u"base_width"_s, u"block_width"_s, u"additional_width"_s }, LENGTHS)
                                       + attributes({ u"packages_per_block"_s }, NUMBERS),
                               QString()));
    }

    QString forms()
    {
        QString result;
        for (int i = below(6); i > 0; --i)
            result += element(
                    u"form"_s,
                    attributes({ u"key"_s }, KEYS) + attributes({ u"value"_s }, VALUES)
                            + attributes({ u"key_name"_s, u"value_name"_s, u"price_class"_s, u"editor_name"_s,
                                           u"name"_s, u"preview"_s },
                                         TEXTS)
                            + attributes({ u"color"_s }, COLORS)
                            + (below(2) ? attributes({ u"preselected"_s, u"not_accountable"_s }, BOOLEANS) : QString()),
                    QString());
        return element(u"forms"_s, QString(), result);
    }

    QString part()
    {
        switch (below(5)) {
        case 0:
            return barcodes();
        case 1:
            return composition();
        case 2:
        case 3:
            return forms();
        default:
            return u"text<![CDATA[<&]]><product type='inner'/>\n"_s;
        }
    }

    QRandomGenerator myRandom;
};

#endif
