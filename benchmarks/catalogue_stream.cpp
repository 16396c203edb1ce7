// usage: catalogue_stream PRODUCTS FORMS
// Writes a catalogue to the standard output while it is generated, so that it may be larger than any disk.
#include "Catalogue.h"

#include <cstdio>
#include <cstdlib>

namespace {

bool write(const QByteArray &text)
{
    return std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout) == std::size_t(text.size());
}

}

int main(int argc, char *argv[])
{
    if (argc != 3)
        return 2;
    const int products = std::atoi(argv[1]);
    const int forms = std::atoi(argv[2]);
    bool isWritten = write(CATALOGUE_HEAD);
    for (int number = 0; number < products && isWritten; ++number)
        isWritten = write(productXml(number, forms));
    return isWritten && write(CATALOGUE_FOOT) && std::fflush(stdout) == 0 ? 0 : 2;
}
