#ifndef MESSAGELOG_H
#define MESSAGELOG_H

#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Keeps what is logged while it lives, one line a message: "warning default file:line function: text". One at a time.
class MessageLog
{
    Q_DISABLE_COPY_MOVE(MessageLog)

public:
    MessageLog()
    {
        theLines.clear();
        myPrevious = qInstallMessageHandler(keep);
    }
    ~MessageLog() { qInstallMessageHandler(myPrevious); }

    QStringList lines() const { return theLines; }

private:
    static void keep(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        const QString typeName = type == QtWarningMsg ? QStringLiteral("warning") : QString::number(type);
        theLines += QStringLiteral("%1 %2 %3:%4 %5: %6")
                            .arg(typeName, QString::fromUtf8(context.category), QString::fromUtf8(context.file),
                                 QString::number(context.line), QString::fromUtf8(context.function), text);
    }

    static inline QStringList theLines;
    QtMessageHandler myPrevious;
};

#endif
