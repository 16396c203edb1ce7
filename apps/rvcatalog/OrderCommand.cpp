#include "Order.h"
#include "OrderJson.h"
#include "PrintableText.h"
#include "ProductSearch.h"
#include "ProductTexts.h"
#include "SubCommands.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// The project of a file, or of the input of the console; nothing, with a message, if it cannot be read.
std::optional<RVCatalogueProject> readProject(const QString &fileName, const Console &console)
{
    RVCatalogueProject project = fileName == "-"_L1 ? RVCatalogueProject::read(console.openInput().get())
                                                    : RVCatalogueProject::read(fileName);
    if (!project.hasError())
        return project;
    console.report(fileName, { project.errorPosition(), project.errorString() });
    return std::nullopt;
}

void writeProduct(QTextStream &out, const Order &order)
{
    const ProductValues &values = order.values();
    const QString name = printableText(values.product.name());
    const int packages = order.packages();
    out << "Product         " << values.type.orderTxtName() << (name.isEmpty() ? QString() : " ("_L1 + name + u')')
        << '\n';
    out << "Pages           " << order.pages() << " (" << packages << (packages == 1 ? " package" : " packages")
        << " above the lowest count)\n";
    if (values.hasSpine)
        out << "Spine           " << millimetresText(values.spineWidth(order.pages())) << " mm\n";
}

void writeOrder(const Order &order, const Console &console)
{
    QTextStream out(console.output);
    writeProduct(out, order);
    out << "\nOptions\n";
    const QStringList chosenKeys = order.chosenKeys();
    for (const ProductOption &option : order.options())
        out << "  " << printableText(option.option.keyName() + ": "_L1 + option.option.visibleName())
            << (chosenKeys.contains(option.option.key()) ? "" : " (default)") << '\n';
    out << "\nPrice classes\n";
    const QMap<RVPriceClass, qint64> counted = order.priceClasses();
    for (auto it = counted.begin(); it != counted.end(); ++it)
        out << "  " << QString::number(it.value()).rightJustified(3) << " x " << printableText(it.key().toString())
            << (it.key().isFree() ? " (free)" : "") << '\n';
    const RVArticleVariants variants = order.variants();
    out << "\nProject file    " << printableText(variants.toKTX()) << '\n';
    out << "Order transfer  " << printableText(variants.toXTCI().toKTX()) << '\n';
    out << "Order text      " << printableText(variants.toOrderTxt()) << '\n';
}

/// The options of the user.
struct OrderRequest
{
    QString catalogueName;
    QString projectName;
    bool isJson;
};

void writeFound(const Order *order, const OrderRequest &request, const QList<Problem> &problems, const Console &console)
{
    if (request.isJson)
        console.write(orderJson(order, { request.catalogueName, request.projectName }, problems));
    else if (order)
        writeOrder(*order, console);
}

int orderProject(const OrderRequest &request, const Console &console)
{
    const std::optional<RVCatalogueProject> project = readProject(request.projectName, console);
    if (!project)
        return EXIT_UNREADABLE;
    const std::optional<ProductSearch> search = findProduct(request.catalogueName, project->type(), console);
    if (!search)
        return EXIT_UNREADABLE;
    const Order order(*project, search->product);
    const QList<Problem> problems = search->product.isNull()
            ? QList<Problem> { { project->element().attributeRange("productname"_L1).begin, search->problem } }
            : order.problems();
    for (const Problem &problem : problems)
        console.report(request.projectName, problem);
    writeFound(problems.isEmpty() ? &order : nullptr, request, problems, console);
    return problems.isEmpty() ? EXIT_FINE : EXIT_PROBLEMS;
}

}

int orderCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Reads product type, page count and options of a project, checks them against the catalogue, adds\n"
            "the default options, and writes the price classes for the bill and the option texts for production."_s);
    const QCommandLineOption format = formatOption({ u"text"_s, u"json"_s });
    parser.addOption(format);
    parser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML; \"-\" is the standard input."_s,
                                 u"CATALOGUE.xml"_s);
    parser.addPositionalArgument(u"PROJECT"_s, u"The project file; \"-\" is the standard input."_s, u"PROJECT.xml"_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 2, 2, console, &exitCode))
        return exitCode;

    const QStringList names = parser.positionalArguments();
    return orderProject({ names.at(0), names.at(1), parser.value(format) == "json"_L1 }, console);
}
