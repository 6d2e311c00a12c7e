#include "FormChecks.h"

#include <cstdio>
#include <cstdlib>

// One source makes all fuzzers; ORV_FUZZ_CHECK names the check of each.

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size);

extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    // Every odd input is logged, and printing would take most of the time.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString wrong = FormChecks::ORV_FUZZ_CHECK(bytes);
    if (!wrong.isEmpty()) {
        std::fprintf(stderr, "The check failed: %s\n", qPrintable(wrong));
        std::abort();
    }
    return 0;
}
