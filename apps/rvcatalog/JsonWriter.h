#ifndef JSONWRITER_H
#define JSONWRITER_H

#include <QList>
#include <QString>
#include <QStringEncoder>

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <string>
#include <string_view>

/**
 * Writes JSON piece by piece, without blanks. The caller sorts the keys of an object, so that the same values give the
 * same text.
 */
class JsonWriter
{
public:
    void beginObject() { myWriter.StartObject(); }
    void endObject() { myWriter.EndObject(); }
    void beginArray() { myWriter.StartArray(); }
    void endArray() { myWriter.EndArray(); }
    void key(QLatin1StringView key); ///< ASCII.

    void null() { myWriter.Null(); }
    void value(bool boolean) { myWriter.Bool(boolean); }
    void value(int number) { myWriter.Int(number); }
    void value(qint64 number) { myWriter.Int64(number); }
    void value(double number); ///< With the fewest digits. Writes null if it is infinite or not a number.
    void value(QLatin1StringView text); ///< ASCII.
    void value(const QString &text);
    void json(std::string_view value); ///< A value that is JSON already.
    void lines(const QList<std::string> &values); ///< An array of values that are JSON already, one on each line.

    /// The text written since the last call. Open objects and arrays stay open.
    std::string take();

private:
    rapidjson::StringBuffer myBuffer;
    rapidjson::Writer<rapidjson::StringBuffer> myWriter { myBuffer };
    QStringEncoder myEncoder { QStringEncoder::Utf8, QStringEncoder::Flag::Stateless };
};

#endif
