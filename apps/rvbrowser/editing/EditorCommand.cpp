#include "EditorCommand.h"

#include <QFileInfo>
#include <QProcess>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Programs that people name in $VISUAL and $EDITOR, and the arguments by which they go to a place.
constexpr struct
{
    QLatin1StringView program;
    QLatin1StringView arguments;
    bool needsTerminal;
} EDITORS[] = {
    { "vim"_L1, "\"+call cursor(%l, %c)\" %f"_L1, true },
    { "nvim"_L1, "\"+call cursor(%l, %c)\" %f"_L1, true },
    { "gvim"_L1, "\"+call cursor(%l, %c)\" %f"_L1, false },
    { "nano"_L1, "+%l,%c %f"_L1, true },
    { "micro"_L1, "+%l:%c %f"_L1, true },
    { "kak"_L1, "+%l:%c %f"_L1, true },
    { "hx"_L1, "%f:%l:%c"_L1, true },
    { "emacs"_L1, "+%l:%c %f"_L1, false },
    { "emacsclient"_L1, "+%l:%c %f"_L1, false },
    { "kate"_L1, "--line %l --column %c %f"_L1, false },
    { "kwrite"_L1, "--line %l --column %c %f"_L1, false },
    { "gedit"_L1, "%f +%l:%c"_L1, false },
    { "geany"_L1, "--line=%l --column=%c %f"_L1, false },
    { "code"_L1, "--goto %f:%l:%c"_L1, false },
    { "codium"_L1, "--goto %f:%l:%c"_L1, false },
    { "subl"_L1, "%f:%l:%c"_L1, false },
    { "qtcreator"_L1, "-client %f:%l:%c"_L1, false },
};

constexpr auto VI_ARGUMENTS = "+%l %f"_L1;

bool asksForTerminal(const QStringList &arguments)
{
    return std::any_of(arguments.begin(), arguments.end(), [](const QString &argument) {
        return argument == "-nw"_L1 || argument == "-t"_L1 || argument == "--tty"_L1
                || argument == "--no-window-system"_L1;
    });
}

/// The argument with everything in its place; what stands behind any other percent sign stays.
QString replaced(const QString &argument, const QString &fileName, const RVFilePosition &position)
{
    QString result;
    for (QStringView rest = argument; !rest.isEmpty();) {
        const bool isFile = rest.startsWith("%f"_L1);
        const bool isLine = rest.startsWith("%l"_L1);
        const bool isColumn = rest.startsWith("%c"_L1);
        if (isFile)
            result += fileName;
        else if (isLine)
            result += QString::number(position.line);
        else if (isColumn)
            result += QString::number(position.column);
        else
            result += rest.front();
        rest = rest.sliced(isFile || isLine || isColumn || rest.startsWith("%%"_L1) ? 2 : 1);
    }
    return result;
}

bool hasFile(const QStringList &parts)
{
    return std::any_of(parts.begin(), parts.end(),
                       [](QString part) { return part.replace("%%"_L1, QString()).contains("%f"_L1); });
}

}

EditorCommand::EditorCommand(const QString &command, bool needsTerminal)
    : myParts(QProcess::splitCommand(command)),
      myNeedsTerminal(needsTerminal)
{
    if (!isEmpty() && !hasFile(myParts.mid(1)))
        myParts += u"%f"_s;
}

EditorCommand EditorCommand::ofEnvironment(const QString &value)
{
    const QStringList parts = QProcess::splitCommand(value);
    if (parts.isEmpty())
        return EditorCommand();
    const QString name = QFileInfo(parts.constFirst()).fileName();
    const auto *known = std::find_if(std::begin(EDITORS), std::end(EDITORS),
                                     [&name](const auto &editor) { return editor.program == name; });
    const bool isKnown = known != std::end(EDITORS);
    EditorCommand result;
    result.myParts = parts;
    // A percent sign in the arguments of the value is one.
    for (auto part = result.myParts.begin() + 1; part != result.myParts.end(); ++part)
        part->replace(u'%', "%%"_L1);
    result.myParts += QProcess::splitCommand(QString(isKnown ? known->arguments : VI_ARGUMENTS));
    result.myNeedsTerminal = !isKnown || known->needsTerminal || asksForTerminal(parts.mid(1));
    return result;
}

QStringList EditorCommand::arguments(const QString &fileName, const RVFilePosition &position) const
{
    QStringList result;
    for (const QString &part : myParts.mid(1))
        result += replaced(part, fileName, position);
    return result;
}
