#ifndef CATALOGUEJSON_H
#define CATALOGUEJSON_H

#include "ShowReport.h"

/// Writes the products of a catalogue that are chosen as a JSON array, each product on a line of its own, on every core
/// of the machine. What is wrong with them goes to the report.
void writeCatalogueJson(CatalogueFile &file, const ProductFilter &filter, ShowReport *report, const Console &console);

#endif
