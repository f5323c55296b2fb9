// Feeds arbitrary bytes to the lock record reader that the library, the
// `ndxcom lock` tool and this fuzzer share. Besides ASan and UBSan it checks
// what the reader promises: names never longer than the bytes there are, a
// complete record that fits the input, and a faithful round trip through the
// writer for plain ASCII names.

#include <private/qfilesharing_p.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

void check(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "fuzz_lockrecord: broken promise: %s\n", what);
        std::abort();
    }
}

bool isAscii(const QString &s)
{
    for (const QChar c : s) {
        if (c.unicode() >= 0x80)
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using namespace NdxComFileSharing;
    const qsizetype n = qsizetype(size);
    const LockRecord r = readLockRecord(reinterpret_cast<const char *>(data), n);

    const qsizetype names = r.computer.size() + r.user.size();
    check(names <= qMax<qsizetype>(0, qMin(n, LockReadLimit) - 20), "names fit the bytes");
    if (r.complete)
        check(20 + r.computer.size() + 4 + r.user.size() <= n, "a complete record fits");
    if (n < 24)
        check(!r.complete, "a record needs at least 24 bytes");

    const LockRecord again = readLockRecord(writeLockRecord(r.pid, r.time, r.computer, r.user));
    check(again.pid == r.pid && again.time == r.time, "numbers survive a round trip");
    if (isAscii(r.computer) && isAscii(r.user))
        check(again.complete && again.computer == r.computer && again.user == r.user,
              "ASCII names survive a round trip");
    return 0;
}
