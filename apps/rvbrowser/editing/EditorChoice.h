#ifndef EDITORCHOICE_H
#define EDITORCHOICE_H

#include "EditorCommand.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

class Settings;

/// The editor that the user chose for catalogues, as the settings keep it.
class EditorChoice
{
    Q_DECLARE_TR_FUNCTIONS(EditorChoice)

public:
    /// An editor to choose.
    struct Editor
    {
        QString id; ///< as the settings keep it
        QString name; ///< for people
        QString command; ///< empty for $VISUAL or $EDITOR
    };

    /// All there are to choose; that whose id is OWN stands for a command of one's own.
    static QList<Editor> editors();
    static constexpr QLatin1StringView OWN { "own" };

    EditorChoice() = default; ///< Nothing was chosen.
    EditorChoice(const QString &id, const QString &ownCommand) : myId(id), myOwnCommand(ownCommand) { }
    static EditorChoice load(const Settings &settings);
    void save(Settings *settings) const;

    /// The id of an editor; without a choice that of $VISUAL or $EDITOR where one is set, else of the first editor that
    /// is installed. Empty where there is none.
    QString id() const;
    QString ownCommand() const { return myOwnCommand; }
    /// The command of the editor; empty where there is none.
    EditorCommand command() const;

private:
    QString myId;
    QString myOwnCommand;
};

#endif
