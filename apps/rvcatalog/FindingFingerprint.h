#ifndef FINDINGFINGERPRINT_H
#define FINDINGFINGERPRINT_H

#include <QByteArray>
#include <QString>

class RVCatalogueFinding;

/// The text of a finding without the numbers of lines that it names.
QString findingTextWithoutLines(const RVCatalogueFinding &finding);

/// The identity of a finding from one version of a catalogue to the next, as 64 hexadecimal digits: of its rule, the
/// type of its product and its text. Lines that the text names do not count, nor does its own place, so that it stays
/// the same when products are put in above it. Two findings in one product may have the same.
QByteArray findingFingerprint(const RVCatalogueFinding &finding);

#endif
