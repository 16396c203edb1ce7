#ifndef CATALOGUE_H
#define CATALOGUE_H

#include <QByteArray>

/// A products XML consists of three parts: the head, any number of products, and the foot.
inline constexpr char CATALOGUE_HEAD[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<products>\n";
inline constexpr char CATALOGUE_FOOT[] = "</products>\n";

/// A photo book with two barcodes, a spine and a number of forms with ten attributes each. The texts depend on the
/// number.
QByteArray productXml(int number, int forms);

/// A whole catalogue.
QByteArray catalogueXml(int products, int forms);

#endif
