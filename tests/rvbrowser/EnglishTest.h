#ifndef ENGLISHTEST_H
#define ENGLISHTEST_H

#include <Language.h>

#include <QApplication>
#include <QTest>

/// Runs a test of the window with the texts of the program in English, in every language of the machine.
template<typename Test>
int runInEnglish(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Language language;
    language.speak(QLocale(QLocale::English));
    Test test;
    return QTest::qExec(&test, argc, argv);
}

#endif
