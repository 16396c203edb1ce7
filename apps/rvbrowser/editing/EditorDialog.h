#ifndef EDITORDIALOG_H
#define EDITORDIALOG_H

#include "EditorChoice.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class Settings;

/// Asks for the editor that catalogues are opened with, and keeps the answer in the settings.
class EditorDialog : public QDialog
{
    Q_OBJECT

public:
    /// The settings must live longer.
    explicit EditorDialog(Settings *settings, QWidget *parent = nullptr);

    void accept() override;

private:
    EditorChoice choice() const;
    void showCommand();

    Settings *mySettings;
    QComboBox *myEditors;
    QLineEdit *myCommand;
    QLabel *myHint;
    QPushButton *myOk;
    QString myOwnCommand; // also while another editor is chosen
};

#endif
