// Memory at its peak while a document is loaded, against that of the bare parse, each in a process of its own.

#include "LifelikeDocument.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

#include <QJsonDocument>

#include <cstdio>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace orv;

namespace {

long peakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// What \a work adds to the peak of a fresh process, in kB.
long peakOf(const std::function<void()> &work)
{
    int ends[2] = {};
    if (pipe(ends) != 0)
        return -1;
    const pid_t child = fork();
    if (child == 0) {
        const long before = peakKilobytes();
        work();
        const long added = peakKilobytes() - before;
        const bool written = write(ends[1], &added, sizeof added) == sizeof added;
        _exit(written ? 0 : 1);
    }
    long added = -1;
    const bool got = read(ends[0], &added, sizeof added) == sizeof added;
    waitpid(child, nullptr, 0);
    close(ends[0]);
    close(ends[1]);
    return got ? added : -1;
}

} // namespace

int main()
{
    const QByteArray bytes = Lifelike::document(100000, 40);
    const long bare = peakOf([&] {
        const QJsonDocument document = QJsonDocument::fromJson(bytes);
        std::printf("%s", document.isNull() ? "broken\n" : "");
    });
    const long value = peakOf([&] {
        const PropertyEditorContent content(bytes);
        std::printf("%s", content.tabsAndContent().isEmpty() ? "broken\n" : "");
    });
    const long valueRoundTrip = peakOf([&] {
        const PropertyEditorContent content(bytes);
        std::printf("%s", content.toJson().isEmpty() ? "broken\n" : "");
    });
    const long object = peakOf([&] {
        PropertyEditor::Content content;
        if (content.assignFromJson(QJsonDocument::fromJson(bytes).object()).hasError())
            std::printf("broken\n");
    });
    std::printf("peak of a document of %.1f MB, added to the text itself\n", double(bytes.size()) / 1e6);
    std::printf("%-36s %10s %8s\n", "", "kB", "ratio");
    const auto row = [bare](const char *name, long kilobytes) {
        std::printf("%-36s %10ld %8.2f\n", name, kilobytes, double(kilobytes) / double(bare));
    };
    row("bare parse", bare);
    row("value form", value);
    row("object form", object);
    row("value form, loaded and written", valueRoundTrip);
    return 0;
}
