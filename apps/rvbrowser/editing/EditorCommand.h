#ifndef EDITORCOMMAND_H
#define EDITORCOMMAND_H

#include <RVFilePosition.h>

#include <QString>
#include <QStringList>

/**
 * A command line that opens a place of a file, such as `kate --line %l --column %c %f`. "%f" stands for the file, "%l"
 * for the line, "%c" for the column, both from 1, and "%%" for a percent sign. The file comes last where the command
 * does not name it.
 *
 * Arguments are split before the file takes its place in one of them, and no shell reads them. So a file name may have
 * blanks, quotes and percent signs; in the command itself, blanks are kept in double quotes.
 */
class EditorCommand
{
public:
    EditorCommand() = default; ///< No command.
    explicit EditorCommand(const QString &command, bool needsTerminal = false);

    /// The command for a value of $VISUAL or $EDITOR, such as "vim" or "emacs -nw". Editors that are known go to the
    /// line, and so do those that are unknown as long as they take "+LINE" as vi does; these are run in a terminal.
    static EditorCommand ofEnvironment(const QString &value);

    bool isEmpty() const { return myParts.isEmpty(); }
    /// True for an editor that has no window of its own.
    bool needsTerminal() const { return myNeedsTerminal; }
    QString program() const { return myParts.value(0); } ///< Empty for no command.
    /// The arguments that open the place.
    QStringList arguments(const QString &fileName, const RVFilePosition &position) const;

private:
    QStringList myParts; // program and arguments, nothing in them replaced
    bool myNeedsTerminal = false;
};

#endif
