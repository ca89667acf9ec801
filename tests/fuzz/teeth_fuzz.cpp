// Whatever the two texts of a tooth chart hold, the chart that is read of them is written as texts of which
// the same chart is read: nothing is lost by opening it and saving it again and again.
#include "specialties/odontology/esquema.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString texts =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const odonto::Esquema read =
        odonto::Esquema::deTexto(texts.section(u'\n', 0, 0), texts.section(u'\n', 1));
    if (!(odonto::Esquema::deTexto(read.string1(), read.string2()) == read))
        abort();
    return 0;
}
