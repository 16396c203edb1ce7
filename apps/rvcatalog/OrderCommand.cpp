#include "ProductSearch.h"
#include "ProductValues.h"
#include "SubCommands.h"

#include <RVCatalogueProject.h>

#include <QCommandLineParser>
#include <QMap>
#include <QTextStream>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr RVDistanceUnit MILLIMETRE = DISTANCE_UNIT_MILLIMETRE;

/// The project of a file, or of the input of the console; nothing, with a message, where it cannot be read.
std::optional<RVCatalogueProject> readProject(const QString &fileName, const Console &console)
{
    RVCatalogueProject project = fileName == "-"_L1 ? RVCatalogueProject::read(console.openInput().get())
                                                    : RVCatalogueProject::read(fileName);
    if (!project.hasError())
        return project;
    console.report(fileName, { project.errorPosition(), project.errorString() });
    return std::nullopt;
}

/// A project and what the catalogue offers for it.
struct Order
{
    RVCatalogueProject project;
    ProductValues values;
    RVConfiguredArticleVariantList options = values.product.options();

    RVArticleVariants chosen() const { return RVArticleVariants::createFromKTX(project.variants()); }
};

QString wrongOption(const QString &key, const QString &value, const Order &order)
{
    const RVConfiguredArticleVariantList offered = order.options.filter(key);
    QStringList values;
    for (const RVConfiguredArticleVariant &option : offered)
        values += option.value();
    if (offered.isEmpty())
        return u"%1 has no option \"%2\"; it has: %3"_s.arg(order.values.type.toString(), key,
                                                            order.options.keys().join(", "_L1));
    if (!values.contains(value))
        return u"the option \"%1\" has no value \"%2\"; it has: %3"_s.arg(key, value, values.join(", "_L1));
    return QString();
}

QStringList optionProblems(const Order &order)
{
    QStringList problems;
    for (const QString &piece : order.project.variants().split(u',', Qt::SkipEmptyParts)) {
        if (!RVArticleVariants(piece).isValid())
            problems += u"\"%1\" is no option; options are written key:value"_s.arg(piece);
    }
    const RVArticleVariants chosen = order.chosen();
    for (const QString &key : chosen.keys()) {
        const QString problem = wrongOption(key, chosen.value(key), order);
        if (!problem.isEmpty())
            problems += problem;
    }
    return problems;
}

/// The reason why this number of pages cannot be ordered; empty if it can.
QString pageCountProblem(const Order &order)
{
    const RVPageCountOrganization &counts = order.values.pageCounts;
    const QString type = order.values.type.toString();
    const QString text = order.project.pages();
    bool isNumber = false;
    const int pages = text.toInt(&isNumber);
    if (text.isEmpty() || !counts.isValid() || (isNumber && counts.isValidPageCount(pages)))
        return QString();
    if (!isNumber)
        return u"\"%1\" is no page count"_s.arg(text);
    if (counts.minPages() == counts.maxPages())
        return u"%1 pages are impossible: %2 has always %3"_s.arg(text, type).arg(counts.minPages());
    return u"%1 pages are impossible: %2 has %3 to %4 pages in steps of %5, the next is %6"_s.arg(text, type)
            .arg(counts.minPages())
            .arg(counts.maxPages())
            .arg(counts.pageIncrement())
            .arg(qMin(counts.constrain(pages), counts.pageCounts().last()));
}

/// The place of an attribute of the project file.
RVFilePosition place(const RVCatalogueProject &project, QLatin1StringView attribute)
{
    return project.element().attributeRange(attribute).begin;
}

QList<Problem> problems(const Order &order)
{
    QList<Problem> result;
    for (const QString &text : optionProblems(order))
        result += { place(order.project, "variants"_L1), text };
    const RVPageCountOrganization &counts = order.values.pageCounts;
    if (!counts.isValid())
        result += { place(order.project, "productname"_L1),
                    u"the catalogue gives no valid page counts for %1 (%2)"_s.arg(order.values.type.toString(),
                                                                                  counts.dump()) };
    const QString text = pageCountProblem(order);
    if (!text.isEmpty())
        result += { place(order.project, "pages"_L1), text };
    return result;
}

/// All packages and options of a product may share one price class, so the sum may be larger than an int.
QMap<RVPriceClass, qint64> countPriceClasses(const Order &order, int packages, const RVArticleVariants &variants)
{
    const RVCatalogueProduct &product = order.values.product;
    QMap<RVPriceClass, qint64> result;
    if (const RVPriceClass priceClass = product.priceClass(); priceClass.isValid())
        ++result[priceClass];
    if (const RVPriceClass priceClass = product.pagePriceClass(); priceClass.isValid() && packages > 0)
        result[priceClass] += packages;
    for (const QString &key : variants.keys()) {
        const RVArticleVariants option(key, variants.value(key));
        const RVPriceClass priceClass = product.optionPriceClass(key, variants.value(key));
        const bool isCharged = !option.containsNotAccountableVariant()
                && !order.options.filter(key).variant(option).isNotAccountable();
        if (isCharged && priceClass.isValid())
            ++result[priceClass];
    }
    return result;
}

void writeProduct(QTextStream &out, const ProductValues &values, int pages, int packages)
{
    const QString name = values.product.name();
    out << "Product         " << values.type.orderTxtName() << (name.isEmpty() ? QString() : " ("_L1 + name + u')')
        << '\n';
    out << "Pages           " << pages << " (" << packages << (packages == 1 ? " package" : " packages")
        << " above the lowest count)\n";
    if (values.hasSpine)
        out << "Spine           " << QString::number(values.spineWidth(pages).value(MILLIMETRE), 'f', 1) << " mm\n";
}

void writeOptions(QTextStream &out, const Order &order, const RVArticleVariants &variants)
{
    const QStringList chosenKeys = order.chosen().keys();
    out << "\nOptions\n";
    for (const RVConfiguredArticleVariant &option : order.options) {
        if (variants.value(option.key()) == option.value())
            out << "  " << option.keyName() << ": " << option.visibleName()
                << (chosenKeys.contains(option.key()) ? "" : " (default)") << '\n';
    }
}

void writeOrder(const Order &order, const Console &console)
{
    RVArticleVariants variants = order.options.defaultVariants();
    variants.insert(order.chosen());
    const RVPageCountOrganization &counts = order.values.pageCounts;
    const QString wantedPages = order.project.pages();
    const int pages = wantedPages.isEmpty() ? counts.minPages() : wantedPages.toInt();
    const int packages = counts.countPackages(pages);

    QTextStream out(console.output);
    writeProduct(out, order.values, pages, packages);
    writeOptions(out, order, variants);
    out << "\nPrice classes\n";
    const QMap<RVPriceClass, qint64> counted = countPriceClasses(order, packages, variants);
    for (auto it = counted.begin(); it != counted.end(); ++it)
        out << "  " << QString::number(it.value()).rightJustified(3) << " x " << it.key().toString()
            << (it.key().isFree() ? " (free)" : "") << '\n';
    out << "\nProject file    " << variants.toKTX() << '\n';
    out << "Order transfer  " << variants.toXTCI().toKTX() << '\n';
    out << "Order text      " << variants.toOrderTxt() << '\n';
}

int orderProject(const QString &catalogueName, const QString &projectName, const Console &console)
{
    const std::optional<RVCatalogueProject> project = readProject(projectName, console);
    if (!project)
        return EXIT_UNREADABLE;
    const std::optional<ProductSearch> search = findProduct(catalogueName, project->type(), console);
    if (!search)
        return EXIT_UNREADABLE;
    const Order order { *project, ProductValues(search->product) };
    const QList<Problem> found = search->product.isNull()
            ? QList<Problem> { { place(*project, "productname"_L1), search->problem } }
            : problems(order);
    for (const Problem &problem : found)
        console.report(projectName, problem);
    if (!found.isEmpty())
        return EXIT_PROBLEMS;
    writeOrder(order, console);
    return EXIT_FINE;
}

}

int orderCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Reads product type, page count and options of a project, checks them against the catalogue, completes\n"
            "them with the default options, counts what is billed per price class and writes the order line."_s);
    parser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML; \"-\" is the standard input."_s,
                                 u"CATALOGUE.xml"_s);
    parser.addPositionalArgument(u"PROJECT"_s, u"The project file; \"-\" is the standard input."_s, u"PROJECT.xml"_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 2, 2, console, &exitCode))
        return exitCode;

    const QString catalogueName = parser.positionalArguments().at(0);
    const QString projectName = parser.positionalArguments().at(1);
    if (catalogueName == "-"_L1 && projectName == "-"_L1)
        return refuseArguments(arguments.constFirst(), u"only one file can be the standard input"_s, console);
    return orderProject(catalogueName, projectName, console);
}
