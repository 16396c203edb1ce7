#ifndef JSONWRITER_H
#define JSONWRITER_H

#include <QString>
#include <QStringView>

#include <string>
#include <string_view>

/**
 * Writes JSON piece by piece, without blanks, in the notation of QJsonDocument: the same escapes and the same numbers.
 * The caller has to sort the keys of an object, which QJsonDocument does itself.
 */
class JsonWriter
{
public:
    void beginObject();
    void endObject();
    void beginArray();
    void endArray();
    void key(QLatin1StringView key); ///< Printable ASCII without quotes and backslashes.

    void null();
    void value(bool boolean);
    void value(int number) { value(qint64(number)); }
    void value(qint64 number);
    void value(double number); ///< Writes null if it is infinite or not a number.
    void value(QStringView text);
    void value(QLatin1StringView text);
    void value(const QString &text) { value(QStringView(text)); }
    void json(std::string_view value); ///< A value that is JSON already.

    /// The blanks and commas between values that the caller separates.
    void separator(std::string_view text);
    /// The text written since the last call.
    std::string take();

private:
    void separate();

    std::string myJson;
    bool myNeedsComma = false;
};

#endif
