#ifndef RVOPTIONSPELLINGCHECK_P_H
#define RVOPTIONSPELLINGCHECK_P_H

#include "RVCheckedOption_p.h"

class RVFindingReport;

/// The order of keys and of values: first without letter case, blanks and invisible letters, then without letter case,
/// then byte by byte. So the spellings of one text are neighbours.
int rvCompareSpellings(QByteArrayView a, QByteArrayView b);
/// True for texts that differ, but only in letter case, blanks and invisible letters.
bool rvIsOtherSpelling(QByteArrayView a, QByteArrayView b);

/// Checks keys and values of options that are valid, but surely not meant.
class RVOptionSpellingCheck
{
public:
    explicit RVOptionSpellingCheck(RVFindingReport *report) : myReport(report) { }

    void check(const RVOptionsByKey &options);

private:
    using Iterator = RVOptionsByKey::const_iterator;

    void checkLetters(const RVCheckedOption &option, QLatin1StringView attribute);
    void checkUnseen(const RVCatalogueElement &form, QLatin1StringView attribute, const QString &text);
    void checkKeys(Iterator begin, Iterator end);
    void checkValues(Iterator begin, Iterator end);
    void checkKeyNames(Iterator begin, Iterator end);
    void addLetterCase(const RVCheckedOption &option, const RVCheckedOption &other, QLatin1StringView attribute);

    RVFindingReport *myReport;
};

#endif
