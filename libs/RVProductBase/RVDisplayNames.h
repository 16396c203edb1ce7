#ifndef RVDISPLAYNAMES_H
#define RVDISPLAYNAMES_H

#include <QByteArray>
#include <QCoreApplication>
#include <QMap>
#include <QString>

#include <utility>

/**
 * The display names of the values of one attribute class T: a name for each value that has one, and a default for all
 * others.
 *
 * The names are in the language of the application when the table is built, on its first use; a later change of
 * language does not change them. The tables of the attribute classes live as long as the process. Every look-up
 * compares the exact value, not bits.
 *
 * @par Example
 * @snippet tst_examples_attributes.cpp RVDisplayNames
 *
 * @ingroup attributes
 */
template<typename T>
class RVDisplayNames
{
public:
    /// The names of all values that have one, in the order of the values.
    QMap<T, QString> names;
    /// The value for unknown names.
    T defaultValue;
    /// The name for values without a name.
    QString unknownName;

    /// @p context is the translation context of the names; it must outlive the table.
    RVDisplayNames(const char *context, QMap<T, QString> names_, const T &defaultValue_, const QString &unknownName_)
        : names(std::move(names_)),
          defaultValue(defaultValue_),
          unknownName(unknownName_),
          myContext(context)
    { }

    /// The name of exactly this value, otherwise unknownName.
    QString name(const T &value) const { return names.value(value, unknownName); }

    /// The lowest value with that name, otherwise the default value. @p name is translated with the translation that is
    /// loaded now, and then compared with the names of the table. If the loaded translation is English, as it was when
    /// the table was built, "Leder" and "Leather" both mean LEATHER. After a change of language, table and translation
    /// do not match: a German table finds neither name while English is loaded, and an English table finds only
    /// "Leather" after English is unloaded.
    ///
    /// The translator gets the name as Latin-1 bytes and reads them as UTF-8, so umlauts and all other letters beyond
    /// ASCII are lost: "Fotopapier Glänzend" is never found.
    T value(const QString &name) const;

private:
    const char *myContext;
};

template<typename T>
T RVDisplayNames<T>::value(const QString &name) const
{
    const QByteArray sourceText = name.toLatin1();
    if (sourceText.contains('\0')) // the translator would read no further
        return defaultValue;
    return names.key(QCoreApplication::translate(myContext, sourceText.constData()), defaultValue);
}

#endif
