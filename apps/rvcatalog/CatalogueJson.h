#ifndef CATALOGUEJSON_H
#define CATALOGUEJSON_H

#include "ShowReport.h"

/// Writes the selected products of a catalogue as a JSON array, each product on a line of its own, on every core of the
/// machine. Their findings go to the report.
void writeCatalogueJson(CatalogueFile &file, const ProductFilter &filter, ShowReport *report, const Console &console);

#endif
