#include "RVRuleExplanation_p.h"

#include "RVFindingText_p.h"

#include <QStringList>

using namespace Qt::StringLiterals;

RVRuleExplanation::RVRuleExplanation(RVCatalogueRule rule)
{
    if (rule.isNull())
        return;
    const QString name = rule.name();
    myParagraphs = {
        { rule.reason(), QString(), ""_L1 },
        { RVFindingText::tr("Broken:"), QString::fromUtf8(rule.example()), "xml"_L1 },
        { RVFindingText::tr("Mended:"), QString::fromUtf8(rule.mendedExample()), "xml"_L1 },
        { RVFindingText::tr("To silence it for an element and everything in it, write in front of that element:"),
          u"<!-- rvcatalog: ignore %1 -->"_s.arg(name), "xml"_L1 },
        { RVFindingText::tr("To leave it out once:"), u"rvcatalog check --disable %1 CATALOGUE.xml"_s.arg(name),
          "sh"_L1 },
        { RVFindingText::tr("To leave it out always, write in rvcatalog.toml:"), u"[rules]\n%1 = \"off\""_s.arg(name),
          "toml"_L1 },
    };
}

QString RVRuleExplanation::toPlainText() const
{
    QStringList result;
    for (const Paragraph &paragraph : myParagraphs) {
        result += paragraph.text;
        if (!paragraph.code.isEmpty())
            result += u"    "_s + paragraph.code.trimmed().replace(u'\n', "\n    "_L1);
    }
    return result.join("\n\n"_L1);
}

QString RVRuleExplanation::toMarkdown() const
{
    QStringList result;
    for (const Paragraph &paragraph : myParagraphs) {
        result += paragraph.text;
        if (!paragraph.code.isEmpty())
            result += u"```%1\n%2\n```"_s.arg(paragraph.language, paragraph.code.trimmed());
    }
    return result.join("\n\n"_L1);
}
