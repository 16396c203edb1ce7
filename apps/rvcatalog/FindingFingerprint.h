#ifndef FINDINGFINGERPRINT_H
#define FINDINGFINGERPRINT_H

#include <QByteArray>
#include <QString>

class RVCatalogueFinding;

/// The text of a finding without its line numbers.
QString findingTextWithoutLines(const RVCatalogueFinding &finding);

/// The identity of a finding from one version of a catalogue to the next, as 64 hexadecimal digits: of its rule, the
/// type of its product and its text. Line numbers in the text and the place do not count, so it stays the same when
/// products are inserted above. Two findings in one product may have the same identity.
QByteArray findingFingerprint(const RVCatalogueFinding &finding);

#endif
