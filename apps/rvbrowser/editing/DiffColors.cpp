#include "DiffColors.h"

#include "PaletteColors.h"

using namespace Qt::StringLiterals;

namespace {

/// A difference begins with the names of both files.
constexpr int LINES_OF_NAMES = 2;

}

DiffColors::DiffColors(QTextDocument *document, const QPalette &palette) : QSyntaxHighlighter(document)
{
    const PaletteColors colors(palette);
    myOld.setForeground(colors.fault());
    myNew.setForeground(colors.good());
    myPlace.setForeground(colors.shade(0.6));
}

void DiffColors::highlightBlock(const QString &text)
{
    const bool isName = currentBlock().blockNumber() < LINES_OF_NAMES;
    if (isName || text.startsWith("@@"_L1))
        setFormat(0, int(text.size()), myPlace);
    else if (text.startsWith(u'-'))
        setFormat(0, int(text.size()), myOld);
    else if (text.startsWith(u'+'))
        setFormat(0, int(text.size()), myNew);
}
