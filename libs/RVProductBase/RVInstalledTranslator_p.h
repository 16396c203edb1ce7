#ifndef RVINSTALLEDTRANSLATOR_P_H
#define RVINSTALLEDTRANSLATOR_P_H

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>

#ifdef Q_OS_WIN
#    include <qt_windows.h>
#else
#    include <dlfcn.h>
#endif

/// The one translator that a library has in the application. It is a child of the application, so that nothing remains
/// where a program makes one application after another.
class RVInstalledTranslator
{
public:
    /// The texts are in rvlibrary_de.qm where @p library is "RVLibrary"; @p address is anything in that library.
    RVInstalledTranslator(const QString &library, const void *address) : myLibrary(library), myAddress(address) { }

    /// Replaces the translator, or changes nothing and returns false where no folder has a file for the locale.
    bool install(const QLocale &locale) const
    {
        if (!QCoreApplication::instance())
            return false;
        auto translator = std::make_unique<QTranslator>();
        if (!load(translator.get(), locale))
            return false;
        const std::unique_ptr<QTranslator> before(find());
        translator->setObjectName(objectName());
        translator->setParent(QCoreApplication::instance());
        return QCoreApplication::installTranslator(translator.release());
    }

    void remove() const
    {
        const std::unique_ptr<QTranslator> before(find()); // which removes itself
    }

    /// The folders that are searched, first to last.
    QStringList folders() const
    {
        const QString subfolder = myLibrary + QLatin1StringView("/translations");
        QStringList result;
        if (const QString library = libraryFolder(); !library.isEmpty()) {
            result << library << library + QLatin1StringView("/translations")
                   << QDir::cleanPath(library + QLatin1StringView("/" RV_DATA_FROM_LIBRARY "/") + subfolder);
        }
        result << QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, subfolder,
                                            QStandardPaths::LocateDirectory);
        result.removeDuplicates();
        return result;
    }

private:
    bool load(QTranslator *translator, const QLocale &locale) const
    {
        const QStringList candidates = folders();
        for (const QString &folder : candidates) {
            if (translator->load(locale, myLibrary.toLower(), QStringLiteral("_"), folder))
                return true;
        }
        return false;
    }

    QTranslator *find() const
    {
        const QCoreApplication *const application = QCoreApplication::instance();
        return application ? application->findChild<QTranslator *>(objectName(), Qt::FindDirectChildrenOnly) : nullptr;
    }

    QString objectName() const { return myLibrary + QLatin1StringView(" translation"); }

    /// Symbolic links are followed; empty where the library is a part of the program or cannot be found.
    QString libraryFolder() const
    {
#ifdef Q_OS_WIN
        HMODULE module = nullptr;
        wchar_t path[MAX_PATH];
        constexpr DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
        if (!GetModuleHandleExW(flags, static_cast<LPCWSTR>(myAddress), &module))
            return QString();
        const DWORD size = GetModuleFileNameW(module, path, MAX_PATH);
        const QString file = QString::fromWCharArray(path, int(size));
#else
        Dl_info info = {};
        if (!dladdr(myAddress, &info) || !info.dli_fname)
            return QString();
        const QString file = QString::fromLocal8Bit(info.dli_fname);
#endif
        return QFileInfo(QFileInfo(file).canonicalFilePath()).path();
    }

    QString myLibrary;
    const void *myAddress;
};

#endif
