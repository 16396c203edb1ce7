// A catalogue, mended in memory.
#include "Properties.h"

#include <RVCatalogue/EncodedText.h>

#include <RVCatalogueReader.h>
#include <RVFileEditor.h>

#include <QBuffer>

#include <cstddef>
#include <cstdint>
#include <map>

namespace {

/// The findings of a check in a file.
struct Checked
{
    QList<RVCatalogueFinding> findings;
    qint64 products = 0;
    bool isRead = false;
};

Checked check(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    CHECK(buffer.open(QIODevice::ReadOnly));
    RVCatalogueReader reader(&buffer);
    reader.setCheck(RVCatalogueCheck());
    Checked result;
    for (const RVCatalogueProduct &product : reader) {
        result.findings += product.findings();
        ++result.products;
    }
    result.findings += reader.findings();
    result.isRead = !reader.hasError();
    return result;
}

/// The edits that an editor accepts, in the order of the file.
std::map<RVFilePosition, RVFileEdit> addFixes(const QList<RVCatalogueFinding> &findings, RVFileEditor *editor)
{
    std::map<RVFilePosition, RVFileEdit> result;
    for (const RVCatalogueFinding &finding : findings) {
        const QList<RVFileEdit> fix = finding.fix();
        if (!editor->add(fix))
            continue;
        for (const RVFileEdit &edit : fix)
            result[edit.range.begin] = edit;
    }
    return result;
}

/// The text with the edits, which are made from the last one to the first.
QString edited(QString text, const std::map<RVFilePosition, RVFileEdit> &edits)
{
    const std::map<RVFilePosition, qsizetype> places = placesIn(text);
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
        const qsizetype begin = places.at(edit->second.range.begin);
        text.replace(begin, places.at(edit->second.range.end) - begin, edit->second.text);
    }
    return text;
}

// Texts in UTF-8 without a byte order mark are edited here as texts; most readable inputs are like this.
void checkBytes(const QByteArray &bytes, const QByteArray &mended, const std::map<RVFilePosition, RVFileEdit> &edits)
{
    const QString text = QString::fromUtf8(bytes);
    if (text.toUtf8() == bytes && !bytes.contains("encoding"))
        CHECK_EQUAL(mended, edited(text, edits).toUtf8());
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const Checked before = check(bytes);
    RVFileEditor editor;
    const std::map<RVFilePosition, RVFileEdit> edits = addFixes(before.findings, &editor);
    const QByteArray mended = editor.apply(bytes);
    CHECK_EQUAL(mended.isNull(), !before.isRead);
    CHECK_EQUAL(mended.isNull(), !editor.errorString().isEmpty());
    if (mended.isNull())
        return 0;
    checkBytes(bytes, mended, edits);

    const Checked after = check(mended);
    CHECK(after.isRead);
    CHECK_EQUAL(after.products, before.products);
    RVFileEditor second;
    addFixes(after.findings, &second);
    CHECK(second.count() == 0 || editor.leftOut() > 0);
    return 0;
}
