#ifndef RVDISPLAYNAMES_H
#define RVDISPLAYNAMES_H

#include <QByteArray>
#include <QCoreApplication>
#include <QMap>
#include <QString>

#include <utility>

/**
 * What people read for the values of one attribute class T: a name for each value that has one, and what stands for all
 * others.
 *
 * The names are in the language that the application speaks when the table is built, which is when it is first asked
 * for; a later change of language does not change them. The tables of the attribute classes live as long as the
 * process. Every lookup is by the exact value, not by bits.
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
    /// The value that a name stands for which no value has.
    T defaultValue;
    /// The name of a value that has none.
    QString unknownName;

    /// @p context is the translation context of the names; it must outlive the table.
    RVDisplayNames(const char *context, QMap<T, QString> names_, const T &defaultValue_, const QString &unknownName_)
        : names(std::move(names_)),
          defaultValue(defaultValue_),
          unknownName(unknownName_),
          myContext(context)
    { }

    /// The name of exactly this value, else unknownName.
    QString name(const T &value) const { return names.value(value, unknownName); }

    /// The lowest value of that name, else the default value. Only a name that the table held when it was built is
    /// found, after @p name has passed through the translation that is loaded now. While that is English, as it was
    /// when the table was built, "Leder" and "Leather" both mean LEATHER. After a change of language the two do not fit
    /// together: a German table finds neither once English is loaded, and an English table finds "Leather" alone once
    /// it is unloaded.
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
