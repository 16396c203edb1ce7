#include "FindingToolTip.h"

#include <RVCatalogueFinding.h>

#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace {

QString placeText(const RVRelatedPlace &place)
{
    const QString file = place.fileName.isEmpty() ? QString() : place.fileName + u':';
    return file + u"%1:%2: "_s.arg(place.range.begin.line).arg(place.range.begin.column) + place.text;
}

}

// The texts of a catalogue go in as text, so none of them is taken for markup.
QString findingToolTip(const RVCatalogueFinding &finding)
{
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertText(finding.text());
    for (const RVRelatedPlace &place : finding.relatedPlaces()) {
        cursor.insertBlock();
        cursor.insertText(placeText(place));
    }
    cursor.insertBlock();
    cursor.insertFragment(QTextDocumentFragment::fromMarkdown(finding.rule().explanationAsMarkdown(),
                                                              QTextDocument::MarkdownDialectGitHub));
    return document.toHtml();
}
