#ifndef RVNUMBERFAULT_P_H
#define RVNUMBERFAULT_P_H

#include <QString>
#include <QStringView>

/// The reason why RVXMLParser cannot read a text as a number, and the text to write instead.
class RVNumberFault
{
public:
    enum class Type {
        Whole,
        Length,
    };
    enum class Reason {
        NoNumber,
        Empty,
        TooLarge,
        TooSmall, ///< below the least number
    };

    /// @p text is no number of that type. For a valid number all texts are empty.
    RVNumberFault(const QString &text, Type type);

    Reason reason() const { return myReason; }
    QString advice() const { return myAdvice; } ///< "write 8.5"; in the language of the program.
    QString mended() const { return myMended; } ///< The number to write; null without one safe answer.

private:
    void judge(const QString &text);
    bool isBeyondRange(const QString &text);
    bool hasGroups(const QString &text);
    bool isOtherwiseWritten(const QString &text);
    bool hasUnit(const QString &text);
    bool isReadable(const QString &text) const;
    void mendAs(const QString &number);

    Type myType;
    Reason myReason = Reason::NoNumber;
    QString myAdvice;
    QString myMended;
};

#endif
