#include "EditorDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

EditorDialog::EditorDialog(Settings *settings, QWidget *parent)
    : QDialog(parent),
      mySettings(settings),
      myEditors(new QComboBox),
      myCommand(new QLineEdit),
      myHint(new QLabel(
              tr("%f stands for the file, %l for the line, %c for the column and %% for a percent sign. Double "
                 "quotes keep blanks."))),
      myOwnCommand(EditorChoice::load(*mySettings).ownCommand())
{
    setObjectName(u"editorDialog"_s);
    setWindowTitle(tr("Editor"));
    myEditors->setObjectName(u"editors"_s);
    myCommand->setObjectName(u"editorCommand"_s);
    myCommand->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    myHint->setWordWrap(true);
    for (const EditorChoice::Editor &editor : EditorChoice::editors())
        myEditors->addItem(editor.name, editor.id);
    const int chosen = myEditors->findData(EditorChoice::load(*mySettings).id());
    myEditors->setCurrentIndex(chosen < 0 ? myEditors->count() - 1 : chosen);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    myOk = buttons->button(QDialogButtonBox::Ok);
    auto *layout = new QFormLayout(this);
    layout->addRow(tr("Open files &with:"), myEditors);
    layout->addRow(tr("&Command:"), myCommand);
    layout->addRow(myHint);
    layout->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &EditorDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &EditorDialog::reject);
    connect(myEditors, &QComboBox::currentIndexChanged, this, &EditorDialog::showCommand);
    connect(myCommand, &QLineEdit::textEdited, this, [this](const QString &command) {
        myOwnCommand = command;
        showCommand();
    });
    showCommand();
}

void EditorDialog::accept()
{
    choice().save(mySettings);
    QDialog::accept();
}

EditorChoice EditorDialog::choice() const
{
    return { myEditors->currentData().toString(), myOwnCommand };
}

void EditorDialog::showCommand()
{
    const QString id = myEditors->currentData().toString();
    const bool isOwn = id == EditorChoice::OWN;
    QString command = myOwnCommand;
    for (const EditorChoice::Editor &editor : EditorChoice::editors()) {
        if (!isOwn && editor.id == id)
            command = editor.command;
    }
    if (myCommand->text() != command)
        myCommand->setText(command);
    myCommand->setEnabled(isOwn);
    myHint->setEnabled(isOwn);
    myOk->setEnabled(!isOwn || !choice().command().isEmpty());
}
