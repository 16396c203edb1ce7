#ifndef DOMPRODUCT_H
#define DOMPRODUCT_H

#include <QColor>
#include <QDomElement>
#include <QList>
#include <QRect>
#include <QString>

/// The values that a program without the library reads from a product element: every attribute by name, numbers by
/// QString.
struct DomForm
{
    QString key;
    QString keyName;
    QString value;
    QString valueName;
    QString editorName;
    QString name;
    QString preview;
    QColor color;
    bool preselected = false;
    bool notAccountable = false;
};

struct DomBarcode
{
    QRect rect; ///< in tenths of a millimetre
    int page = 0;
    QString image;
};

struct DomGeometry
{
    int lowestPages = 0;
    int highestPages = 0;
    int pageStep = 0;
    int packagesPerBlock = 0;
    // These lengths are in tenths of a millimetre.
    double baseWidth = 0;
    double blockWidth = 0;
    double additionalWidth = 0;
    QList<DomForm> forms;
    QList<DomBarcode> barcodes;

    explicit DomGeometry(const QDomElement &product);
};

#endif
