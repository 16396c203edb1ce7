#ifndef CATALOGUE_H
#define CATALOGUE_H

#include <QByteArray>

/// A products XML is these three: the head, any number of products, the foot.
inline constexpr char CATALOGUE_HEAD[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<products>\n";
inline constexpr char CATALOGUE_FOOT[] = "</products>\n";

/// A photo book with two barcodes, a spine and so many forms of ten attributes each. The number decides on the texts.
QByteArray productXml(int number, int forms);

/// A whole catalogue.
QByteArray catalogueXml(int products, int forms);

#endif
