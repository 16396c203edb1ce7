#ifndef RVKOMMA_P_H
#define RVKOMMA_P_H

#include <QChar>

/// Separates the pieces of every list that the library reads.
inline constexpr QChar KOMMA(u',');

#endif
