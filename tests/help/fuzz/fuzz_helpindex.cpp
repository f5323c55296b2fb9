// Feeds arbitrary bytes to the help index reader that the library runs, and
// every value it reads to the check of the documents help may open. Besides
// ASan and UBSan it checks what they promise: no line longer than the limit,
// and a document that is accepted is a plain relative path of a document
// type, inside the language folder.

#include <private/qnodrixhelp_p.h>

#include <QtCore/QStringList>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

void check(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "fuzz_helpindex: broken promise: %s\n", what);
        std::abort();
    }
}

void checkDocument(const QString &value)
{
    using namespace NdxComHelp;
    const HelpDocument document = helpDocument(value);
    if (document.refused) {
        check(document.path.isEmpty(), "a refused document has no path");
        return;
    }
    check(!document.path.isEmpty(), "an accepted document has a path");
    check(isDocumentType(document.path), "an accepted document is of a document type");
    check(!document.path.startsWith(QLatin1Char('/')), "an accepted document is relative");
    for (const QString &name : document.path.split(QLatin1Char('/'))) {
        check(!name.isEmpty() && name != QLatin1String(".") && name != QLatin1String(".."),
              "an accepted document stays in the folder");
        check(!name.endsWith(QLatin1Char('.')) && !name.endsWith(QLatin1Char(' ')),
              "no name Windows would shorten");
        for (const QChar c : name)
            check(c.unicode() >= 0x20 && c != QLatin1Char(':') && c != QLatin1Char('\\'),
                  "no control character, stream or drive, no backslash");
    }
    // Accepting a path again gives itself when nothing in it reads as an
    // escape, a fragment or a query any more.
    if (!document.path.contains(QLatin1Char('%')) && !document.path.contains(QLatin1Char('#')))
        check(helpDocument(document.path).path == document.path, "an accepted path is stable");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using namespace NdxComHelp;
    const QByteArray bytes
        = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    QHash<QString, QString> index;
    readHelpIndex(bytes, index, size % 2 == 1);
    for (auto it = index.cbegin(); it != index.cend(); ++it) {
        check(it.key().size() <= IndexLineLimit && it.value().size() <= IndexLineLimit,
              "no line beyond the limit");
        checkDocument(it.value());
    }
    // The bytes as one value too, whatever line breaks they hold.
    checkDocument(QString::fromUtf8(bytes));
    return 0;
}
