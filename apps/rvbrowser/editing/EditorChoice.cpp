#include "EditorChoice.h"

#include "Settings.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr auto EDITOR_KEY = "editor/name"_L1;
constexpr auto COMMAND_KEY = "editor/command"_L1;
constexpr auto ENVIRONMENT = "environment"_L1;

/// $VISUAL comes before $EDITOR, as for other programs.
QString environmentValue()
{
    const QString visual = qEnvironmentVariable("VISUAL").trimmed();
    return visual.isEmpty() ? qEnvironmentVariable("EDITOR").trimmed() : visual;
}

}

QList<EditorChoice::Editor> EditorChoice::editors()
{
    return {
        { u"kate"_s, u"Kate"_s, u"kate --line %l --column %c %f"_s },
        { u"code"_s, u"Visual Studio Code"_s, u"code --goto %f:%l:%c"_s },
        { u"qtcreator"_s, u"Qt Creator"_s, u"qtcreator -client %f:%l:%c"_s },
        { ENVIRONMENT, tr("The editor of $VISUAL or $EDITOR"), QString() },
        { OWN, tr("Another command"), QString() },
    };
}

EditorChoice EditorChoice::load(const Settings &settings)
{
    return { settings.value(EDITOR_KEY).toString(), settings.value(COMMAND_KEY).toString() };
}

void EditorChoice::save(Settings *settings) const
{
    settings->setValue(EDITOR_KEY, myId);
    settings->setValue(COMMAND_KEY, myOwnCommand);
}

QString EditorChoice::id() const
{
    const QList<Editor> all = editors();
    for (const Editor &editor : all) {
        if (editor.id == myId)
            return myId;
    }
    if (!environmentValue().isEmpty())
        return ENVIRONMENT;
    for (const Editor &editor : all) {
        const QString program = EditorCommand(editor.command).program();
        if (!program.isEmpty() && !QStandardPaths::findExecutable(program).isEmpty())
            return editor.id;
    }
    return QString();
}

EditorCommand EditorChoice::command() const
{
    const QString chosen = id();
    if (chosen == ENVIRONMENT)
        return EditorCommand::ofEnvironment(environmentValue());
    if (chosen == OWN)
        return EditorCommand(myOwnCommand);
    for (const Editor &editor : editors()) {
        if (editor.id == chosen)
            return EditorCommand(editor.command);
    }
    return EditorCommand();
}
