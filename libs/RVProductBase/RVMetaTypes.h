#ifndef RVMETATYPES_H
#define RVMETATYPES_H

#include "RVAttributeText.h"
#include "RVProductBaseExport.h"

#include <QMetaType>
#include <QString>

#include <functional>
#include <optional>

/**
 * Makes the value classes known to QVariant by name, and teaches QVariant to convert them to QString and back.
 *
 * Call registerAll() once, before settings are read and before QML sees a value. Without it a QVariant holds, compares
 * and streams values all the same, but knows no texts, and a process that has not used a class yet cannot read it from
 * a stream or from settings.
 *
 * A text that cannot be read gives the default-constructed value, such as an attribute that is null, and a value that
 * has no text an empty one. From Qt 6.8 on, QVariant::convert() then returns false as well; before, it returns true.
 *
 * @par Example
 * @snippet tst_guide_qt.cpp texts
 * @ingroup qt
 */
class RVPRODUCTBASE_EXPORT RVMetaTypes
{
public:
    /// Registers all value classes that can be default-constructed, and these texts:
    ///
    /// - attribute classes, RVSpotColor included: RVAttributeText
    /// - RVArticleId, RVShippingGroupId: a decimal number
    /// - RVOrderId, RVPriceClass, RVProductType: toString(), any text can be read
    /// - RVArticleVariants: as toKTX(), but sorted by key and with empty values, such as "alcolor:red,coverphoto:yes".
    ///   Options with a separator in key or value cannot be written.
    /// - RVPageCountOrganization: dump(), such as "min: 26; max: 154; increment: 4"
    ///
    /// Any thread, any number of times; only the first call does something. A converter that the application has
    /// registered before stays.
    static void registerAll();

    /// The same for an attribute class of the application, which derives from RVEnumWrapper and can be made from its
    /// enumeration and from nothing. Not from two threads at once for the same class.
    template<typename Attribute>
    static void registerAttribute()
    {
        registerText<Attribute>(&RVAttributeText<Attribute>::write, &RVAttributeText<Attribute>::read);
    }

    /// The same for any class of the application. @p write makes a QString of a `const T &`, or a
    /// std::optional<QString>; @p read makes a std::optional<T> of a `const QString &`, nothing where the text means no
    /// value.
    template<typename T, typename Write, typename Read>
    static void registerText(Write write, Read read)
    {
        qRegisterMetaType<T>();
        if (!QMetaType::hasRegisteredConverterFunction<T, QString>())
            QMetaType::registerConverter<T, QString>(
                    [write](const T &value) { return result<QString>(std::invoke(write, value)); });
        if (!QMetaType::hasRegisteredConverterFunction<QString, T>())
            QMetaType::registerConverter<QString, T>([read](const QString &text) { return result<T>(read(text)); });
    }

private:
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    template<typename T>
    static std::optional<T> result(std::optional<T> value)
    {
        return value;
    }
#else
    template<typename T>
    static T result(const std::optional<T> &value)
    {
        return value.value_or(T());
    }
#endif
};

#endif
