#ifndef MANYPRODUCTS_H
#define MANYPRODUCTS_H

#include <QByteArray>

/// A catalogue with nothing to find, of the products "T0", "T1" and so on, one a line from the second line on.
inline QByteArray manyProducts(int count)
{
    QByteArray content("<products>\n");
    for (int i = 0; i < count; ++i)
        content += "<product type='T" + QByteArray::number(i) + "' article_id='" + QByteArray::number(i + 1)
                + "' article_class='book' cover_type='hardcover' pages='26' max_pages='154' page_step='4'/>\n";
    return content + "</products>\n";
}

#endif
