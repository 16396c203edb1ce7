#ifndef RVFILEEDITOR_H
#define RVFILEEDITOR_H

#include "RVCatalogueExport.h"
#include "RVFileEdit.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>

class QIODevice;
class RVFileEditorPrivate;

/**
 * Makes the edits of findings in a catalogue, and leaves every other byte of it as it is: comments, the order of
 * attributes, line ends, the encoding and the byte order mark.
 *
 * @code
 * RVFileEditor editor(u"products.xml"_s);
 * RVCatalogueReader reader(u"products.xml"_s);
 * reader.setCheck(RVCatalogueCheck());
 * for (const RVCatalogueProduct &product : reader) {
 *     for (const RVCatalogueFinding &finding : product.findings())
 *         editor.add(finding.fix());
 * }
 * if (!editor.save())
 *     qWarning() << editor.errorString();
 * @endcode
 *
 * New text is written in the encoding of the file; a letter that the encoding lacks becomes a reference such as
 * `&#x20AC;`, in places where XML reads references. The result is read back. If it does not have exactly the wanted
 * text, or is not well-formed, the file stays unchanged and there is an error.
 *
 * An editor belongs to one thread. Memory grows with the edits and not with the file; only where a text needs a
 * reference, the file is held in memory once.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVFileEditor
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVFileEditor
{
    Q_DISABLE_COPY_MOVE(RVFileEditor)

public:
    RVFileEditor(); ///< An editor for apply().
    /// An editor for save(). Create it before the file is read, so that it notices later changes by another program.
    explicit RVFileEditor(const QString &fileName);
    ~RVFileEditor();

    /// Adds edits that belong together: all of them are made, or none. Returns false and adds none if the list is
    /// empty, if an edit ends in front of its begin, or if one overlaps an edit that was added before. An edit that was
    /// added already is made once.
    bool add(const QList<RVFileEdit> &fix);
    qsizetype count() const; ///< The number of added fixes.
    /// The number of fixes that overlap others. Find them again after the file was changed.
    qsizetype leftOut() const;

    /// Replaces the file in one step: a program that opens it gets the old one or the new one, even if this program or
    /// the machine goes down or the disk is full. Permissions stay, and so do owner, group and extended attributes if
    /// the program may set them. A symbolic link stays a link; of several hard links, only this name gets the new text.
    /// A call without fixes does not write the file.
    ///
    /// Returns false if the file is not an ordinary one, is write-protected or was changed, or if its folder cannot be
    /// written to.
    bool save();
    /// Reads a file from its begin, and writes it with the edits. @p from is open for reading, and not sequential;
    /// @p to is open for reading and writing, not sequential, and empty. If it returns false, @p to may have a part of
    /// the text.
    bool apply(QIODevice *from, QIODevice *to);
    /// The bytes of a file with the edits; null if that is impossible.
    QByteArray apply(const QByteArray &bytes);

    QString errorString() const; ///< One line, without a full stop, in the language of the program; empty without one.

private:
    std::unique_ptr<RVFileEditorPrivate> d;
};

#endif
