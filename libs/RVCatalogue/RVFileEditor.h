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
 * New text is written in the encoding of the file; a letter that it does not have becomes a reference such as
 * `&#x20AC;`, where XML reads one. The result is read back: it must have exactly the wanted text and be well-formed,
 * or nothing is changed and there is an error.
 *
 * An editor belongs to one thread. Memory grows with the edits and not with the file.
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
    RVFileEditor(); ///< For apply().
    /// For save(). Create it before the file is read, so that it notices when somebody else changes the file later.
    explicit RVFileEditor(const QString &fileName);
    ~RVFileEditor();

    /// Adds edits that belong together: all of them are made, or none. False, and none is, where there are none, where
    /// one ends in front of its begin, or where one touches a piece that was to be changed already. An edit that is
    /// there already is made once.
    bool add(const QList<RVFileEdit> &fix);
    qsizetype count() const; ///< Fixes that were added.
    /// Fixes that touch others. They are to be looked for again in the file as it is then.
    qsizetype leftOut() const;

    /// Replaces the file at once: who opens it gets the old one or the new one, also when the program or the machine
    /// goes down or the disk is full. Permissions stay, and where the program may set them owner, group and extended
    /// attributes. A symbolic link stays one; of hard links only this name gets the new text. Without fixes nothing is
    /// written.
    ///
    /// False where the file is not an ordinary one, is write-protected or was changed, or cannot be written beside.
    bool save();
    /// Reads a file from its begin, and writes it with the edits. @p from is open for reading, and not sequential;
    /// @p to is open for reading and writing, not sequential, and empty. False leaves some of the text in it.
    bool apply(QIODevice *from, QIODevice *to);
    /// The bytes of a file with the edits; null where that is impossible.
    QByteArray apply(const QByteArray &bytes);

    QString errorString() const; ///< One line, without a full stop, in the language of the program; empty without one.

private:
    std::unique_ptr<RVFileEditorPrivate> d;
};

#endif
