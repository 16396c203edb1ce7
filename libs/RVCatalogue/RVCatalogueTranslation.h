#ifndef RVCATALOGUETRANSLATION_H
#define RVCATALOGUETRANSLATION_H

#include "RVCatalogueExport.h"

#include <QLocale>
#include <QStringList>

/**
 * Has the texts about catalogues translated: findings, rules, errors and labels of attributes.
 *
 * The texts in the sources are English, so there is no English file: call remove() for English. There is one for
 * German. RVTranslation does the same for the display texts of products. Texts are translated when they are asked for
 * and follow a change of language.
 *
 * All functions belong to the thread of the application. The translator is deleted with the application.
 *
 * @par Example
 * @snippet tst_guide_qt.cpp translation
 * @ingroup qt
 */
class RVCATALOGUE_EXPORT RVCatalogueTranslation
{
public:
    /// Installs the translator for the locale, in place of the one that an earlier call installed. Returns false where
    /// there is no application, or no folder has a file for one of the locale's languages; then nothing changes.
    static bool install(const QLocale &locale = QLocale());

    /// Takes the translator away again: the texts are those of the sources.
    static void remove();

    /// The folders that are searched for rvcatalogue_de.qm, first to last: that of the library, "translations" in it,
    /// where the library's installation has them, however it was moved, and "RVCatalogue/translations" in the system's
    /// folders of data, such as /usr/share.
    static QStringList folders();
};

#endif
