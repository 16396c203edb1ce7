#ifndef LANGUAGE_H
#define LANGUAGE_H

#include <QLocale>
#include <QTranslator>

/// The language of the program, English or German, as long as this object lives. Texts of the program and of catalogues
/// are English in their sources, display names of products are German.
class Language
{
public:
    /// English where the program does not speak the language. Call it once.
    void speak(const QLocale &locale);

private:
    QTranslator myProgram;
    QTranslator myPlot;
    QTranslator myCatalogue;
    QTranslator myLibrary;
    QTranslator myQt;
};

#endif
