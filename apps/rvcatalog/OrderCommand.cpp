#include "Commands.h"

#include <CatalogueProduct.h>

#include <QCommandLineParser>
#include <QFile>
#include <QMap>
#include <QTextStream>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr RVDistanceUnit MILLIMETRE = DISTANCE_UNIT_MILLIMETRE;

struct Project
{
    RVProductType type;
    QString pages; // as written; empty: the lowest count of the product
    QString variants; // the project-file form
    FilePosition position;
};

/// Reads the root element of the project file and checks that the rest is well-formed; reports what is wrong.
std::optional<Project> readProject(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        report(fileName, FilePosition(), u"cannot open the file: "_s + file.errorString());
        return std::nullopt;
    }
    CatalogueReader reader(&file, QString());
    const QDomElement root = reader.rootStart();
    if (!reader.finish()) {
        report(fileName, reader.errorPosition(), reader.errorString());
        return std::nullopt;
    }
    return Project { RVProductType::fromKtx(root), root.attribute(u"pages"_s), root.attribute(u"variants"_s),
                     reader.position() };
}

/// Finds the first product of the type; reads the catalogue to its end, so that a broken one is noticed.
std::optional<CatalogueProduct> findProduct(const QString &fileName, const RVProductType &type, bool *isReadable)
{
    QFile file(fileName);
    *isReadable = file.open(QIODevice::ReadOnly);
    if (!*isReadable) {
        report(fileName, FilePosition(), u"cannot open the file: "_s + file.errorString());
        return std::nullopt;
    }
    CatalogueReader reader(&file, u"product"_s);
    std::optional<CatalogueProduct> found;
    for (QDomElement element = reader.next(); !element.isNull(); element = reader.next()) {
        if (!found && RVProductType(element.attribute(u"type"_s)) == type)
            found = CatalogueProduct(element);
    }
    *isReadable = !reader.hasError();
    if (!*isReadable)
        report(fileName, reader.errorPosition(), reader.errorString());
    return found;
}

QStringList variantProblems(const QString &text, const CatalogueProduct &product)
{
    QStringList problems;
    for (const QString &piece : text.split(u',', Qt::SkipEmptyParts)) {
        if (!RVArticleVariants(piece).isValid())
            problems += u"\"%1\" is no option; options are written key:value"_s.arg(piece);
    }
    const RVArticleVariants chosen = RVArticleVariants::createFromKTX(text);
    for (const QString &key : chosen.keys()) {
        const RVConfiguredArticleVariantList offered = product.options.filter(key);
        QStringList values;
        for (const RVConfiguredArticleVariant &option : offered)
            values += option.value();
        if (offered.isEmpty())
            problems += u"%1 has no option \"%2\"; it has: %3"_s.arg(product.type.toString(), key,
                                                                     product.options.keys().join(", "_L1));
        else if (!values.contains(chosen.value(key)))
            problems += u"the option \"%1\" has no value \"%2\"; it has: %3"_s.arg(key, chosen.value(key),
                                                                                   values.join(", "_L1));
    }
    return problems;
}

QStringList pageCountProblems(const QString &text, const CatalogueProduct &product)
{
    const RVPageCountOrganization &counts = product.pageCounts;
    const QString type = product.type.toString();
    if (!counts.isValid())
        return { u"the catalogue gives no valid page counts for %1 (%2)"_s.arg(type, counts.dump()) };
    if (text.isEmpty())
        return {};
    bool isNumber = false;
    const int pages = text.toInt(&isNumber);
    if (!isNumber)
        return { u"\"%1\" is no page count"_s.arg(text) };
    if (counts.isValidPageCount(pages))
        return {};
    if (counts.minPages() == counts.maxPages())
        return { u"%1 pages are impossible: %2 has always %3"_s.arg(text, type).arg(counts.minPages()) };
    return { u"%1 pages are impossible: %2 has %3 to %4 pages in steps of %5, the next is %6"_s.arg(text, type)
                     .arg(counts.minPages())
                     .arg(counts.maxPages())
                     .arg(counts.pageIncrement())
                     .arg(qMin(counts.constrain(pages), counts.pageCounts().last())) };
}

/// All packages and options of a product may share one price class, so the sum may be larger than an int.
QMap<RVPriceClass, qint64> countPriceClasses(const CatalogueProduct &product, int packages,
                                             const RVArticleVariants &variants)
{
    QMap<RVPriceClass, qint64> result;
    if (product.priceClass.isValid())
        ++result[product.priceClass];
    if (product.pagePriceClass.isValid() && packages > 0)
        result[product.pagePriceClass] += packages;
    for (const QString &key : variants.keys()) {
        const RVArticleVariants option(key, variants.value(key));
        const RVPriceClass priceClass = product.optionPriceClass(key, variants.value(key));
        const bool isCharged = !option.containsNotAccountableVariant()
                && !product.options.filter(key).variant(option).isNotAccountable();
        if (isCharged && priceClass.isValid())
            ++result[priceClass];
    }
    return result;
}

void writeOrder(const Project &project, const CatalogueProduct &product)
{
    const RVArticleVariants chosen = RVArticleVariants::createFromKTX(project.variants);
    RVArticleVariants variants = product.options.defaultVariants();
    variants.insert(chosen);
    const int pages = project.pages.isEmpty() ? product.pageCounts.minPages() : project.pages.toInt();
    const int packages = product.pageCounts.countPackages(pages);

    QTextStream out(stdout);
    out << "Product         " << product.type.orderTxtName()
        << (product.name.isEmpty() ? QString() : " ("_L1 + product.name + u')') << '\n';
    out << "Pages           " << pages << " (" << packages << (packages == 1 ? " package" : " packages")
        << " above the lowest count)\n";
    if (product.hasSpine())
        out << "Spine           "
            << QString::number(product.spine.spineWidth(unsigned(qMax(0, pages))).value(MILLIMETRE), 'f', 1) << " mm\n";
    out << "\nOptions\n";
    for (const RVConfiguredArticleVariant &option : product.options) {
        if (variants.value(option.key()) == option.value())
            out << "  " << option.keyName() << ": " << option.visibleName()
                << (chosen.keys().contains(option.key()) ? "" : " (default)") << '\n';
    }
    out << "\nPrice classes\n";
    const QMap<RVPriceClass, qint64> counted = countPriceClasses(product, packages, variants);
    for (auto it = counted.begin(); it != counted.end(); ++it)
        out << "  " << QString::number(it.value()).rightJustified(3) << " x " << it.key().toString()
            << (it.key().isFree() ? " (free)" : "") << '\n';
    out << "\nProject file    " << variants.toKTX() << '\n';
    out << "Order transfer  " << variants.toXTCI().toKTX() << '\n';
    out << "Order text      " << variants.toOrderTxt() << '\n';
}

}

int orderCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Reads product type, page count and options of a project, checks them against the catalogue, completes\n"
            "them with the default options, counts what is billed per price class and writes the order line."_s);
    parser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML."_s, u"CATALOGUE.xml"_s);
    parser.addPositionalArgument(u"PROJECT"_s, u"The project file."_s, u"PROJECT.xml"_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 2, 2, &exitCode))
        return exitCode;

    const QString catalogueName = parser.positionalArguments().at(0);
    const QString projectName = parser.positionalArguments().at(1);
    const std::optional<Project> project = readProject(projectName);
    if (!project)
        return EXIT_UNREADABLE;
    bool isReadable = false;
    const std::optional<CatalogueProduct> product = findProduct(catalogueName, project->type, &isReadable);
    if (!isReadable)
        return EXIT_UNREADABLE;
    if (!product) {
        report(projectName, project->position,
               u"the catalogue has no product of type \"%1\""_s.arg(project->type.orderTxtName()));
        return EXIT_PROBLEMS;
    }
    const QStringList problems = variantProblems(project->variants, *product)
            + pageCountProblems(project->pages, *product);
    for (const QString &problem : problems)
        report(projectName, project->position, problem);
    if (!problems.isEmpty())
        return EXIT_PROBLEMS;
    writeOrder(*project, *product);
    return EXIT_FINE;
}
