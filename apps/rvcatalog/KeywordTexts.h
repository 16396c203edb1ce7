#ifndef KEYWORDTEXTS_H
#define KEYWORDTEXTS_H

#include "Console.h"

#include <RVCatalogueAttribute.h>

#include <QList>

#include <string>

/// A list of keywords and its meaning.
struct KeywordDecoding
{
    QString text; ///< as it was given
    RVCatalogueAttributeDecoding meaning;
};

/// Writes the keywords of attributes for people, or as JSON without the names that depend on the language.
/// @{
void writeKeywords(const QList<RVCatalogueAttribute> &attributes, const Console &console);
std::string keywordsJson(const QList<RVCatalogueAttribute> &attributes);
/// @}

/// The same for lists of keywords of one attribute.
/// @{
void writeDecodings(const QList<KeywordDecoding> &decodings, const Console &console);
std::string decodingsJson(const RVCatalogueAttribute &attribute, const QList<KeywordDecoding> &decodings);
/// @}

#endif
