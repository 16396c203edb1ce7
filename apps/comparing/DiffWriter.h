#ifndef DIFFWRITER_H
#define DIFFWRITER_H

#include <QString>

#include <functional>
#include <memory>

struct ComparedProduct;
struct RVComparisonCounts;

/// Writes the differences between two catalogues, in one of several formats.
class DiffWriter
{
    Q_DISABLE_COPY_MOVE(DiffWriter)

public:
    /// Takes the text piece by piece.
    using Output = std::function<void(const QString &text)>;

    /// "text", "json" or "markdown"; null for any other format. Only texts have colours.
    static std::unique_ptr<DiffWriter> create(const QString &format, bool hasColor, const Output &output);
    virtual ~DiffWriter();

    /// The names of the two catalogues, as the user gave them.
    virtual void begin(const QString &, const QString &) { }
    /// A product that differs.
    virtual void product(const ComparedProduct &product) = 0;
    virtual void end(const RVComparisonCounts &counts) = 0;

protected:
    explicit DiffWriter(const Output &output) : myOutput(output) { }

    void write(const QString &text) const { myOutput(text); }

private:
    Output myOutput;
};

#endif
