#ifndef RVTRANSLATION_H
#define RVTRANSLATION_H

#include "RVProductBaseExport.h"

#include <QLocale>
#include <QStringList>

/**
 * Has the display texts of the library translated: names of papers and covers, page counts, page types.
 *
 * The texts in the sources are German, without plural forms: "1 Seiten". So a German program installs its locale as
 * well. There are files for German and English.
 *
 * Install the translator before the first text is asked for: the tables of names (RVDisplayNames) are built once, on
 * first use, and keep the language of that moment. Texts that are no table, such as those of
 * RVPageCountOrganizationListModel and RVDlpType::visibleName(), follow a change of language; QEvent::LanguageChange
 * goes to the widgets as with any translator.
 *
 * All functions belong to the thread of the application. The translator is deleted with the application.
 *
 * @par Example
 * @snippet tst_guide_qt.cpp translation
 * @ingroup qt
 */
class RVPRODUCTBASE_EXPORT RVTranslation
{
public:
    /// Installs the translator for the locale, in place of the one that an earlier call installed. Returns false where
    /// there is no application, or no folder has a file for one of the locale's languages; then nothing changes.
    static bool install(const QLocale &locale = QLocale());

    /// Takes the translator away again: the texts are those of the sources.
    static void remove();

    /// The folders that are searched for rvproductbase_de.qm, first to last: that of the library, "translations" in it,
    /// where the library's installation has them, however it was moved, and "RVProductBase/translations" in the
    /// system's folders of data, such as /usr/share.
    static QStringList folders();
};

#endif
