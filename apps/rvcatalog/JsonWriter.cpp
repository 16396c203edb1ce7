#include "JsonWriter.h"

#include <QByteArray>
#include <QLocale>
#include <QVarLengthArray>
#include <QtNumeric>

#include <cmath>

namespace {

constexpr double LARGEST_EXACT = 9007199254740992.0; // up to here a double holds every whole number

}

void JsonWriter::key(QLatin1StringView key)
{
    myWriter.Key(key.data(), rapidjson::SizeType(key.size()));
}

void JsonWriter::value(double number)
{
    if (!qIsFinite(number))
        null();
    else if (std::fabs(number) <= LARGEST_EXACT && number == std::trunc(number))
        value(qint64(number));
    else
        json(QByteArray::number(number, 'g', QLocale::FloatingPointShortest).constData());
}

void JsonWriter::value(QLatin1StringView text)
{
    myWriter.String(text.data(), rapidjson::SizeType(text.size()));
}

void JsonWriter::value(const QString &text)
{
    QVarLengthArray<char> utf8(myEncoder.requiredSpace(text.size()));
    const char *end = myEncoder.appendToBuffer(utf8.data(), text);
    myWriter.String(utf8.constData(), rapidjson::SizeType(end - utf8.constData()));
}

void JsonWriter::json(std::string_view value)
{
    myWriter.RawValue(value.data(), value.size(), rapidjson::kObjectType);
}

void JsonWriter::lines(const QList<std::string> &values)
{
    std::string text = "[";
    for (const std::string &value : values)
        text.append(text.size() > 1 ? ",\n" : "\n").append(value);
    json(text + "\n]");
}

std::string JsonWriter::take()
{
    std::string result(myBuffer.GetString(), myBuffer.GetSize());
    myBuffer.Clear();
    if (myWriter.IsComplete())
        myWriter.Reset(myBuffer);
    return result;
}
