// What is asked of a whole document, on 1,000, 10,000 and 100,000 samples: linear questions take ten times as
// long each time. And a document of 20,000 proteins against the bare parse.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <orv/propertyeditor/PropertiesGetter.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

#include <QJsonDocument>
#include <QLoggingCategory>

#include <functional>

using namespace orv;
using PropertyEditor::Content;

namespace {

/// Work of this many samples takes long enough to be measured once, and so long that nine times are too many.
constexpr int kLongWork = 100'000;
constexpr int kRunsOfLongWork = 3;

enum class Length
{
    Short,
    Long,
};

void add(const std::string &name, const std::function<void()> &work, Length length = Length::Short)
{
    auto *const one = benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state)
            work();
    });
    one->Unit(benchmark::kMicrosecond);
    if (length == Length::Long)
        one->Iterations(1)->Repetitions(kRunsOfLongWork);
}

template<typename T>
void keep(T &&value)
{
    benchmark::DoNotOptimize(value);
}

Content load(const QByteArray &bytes)
{
    Content content;
    if (content.assignFromJson(QJsonDocument::fromJson(bytes).object()).hasError())
        qFatal("The benchmark's document can't be loaded");
    return content;
}

/// From each sample's file to another, and back when it is called again.
class Moves
{
public:
    explicit Moves(const Content &content)
    {
        for (const ResourceReferenceSPtr &reference : content.allReferences()) {
            const Result<ResourceReferenceSPtr> moved =
                ResourceReference::fromString(reference->text() + QStringLiteral(".gz"));
            m_there.append({reference, *moved});
            m_back.append({*moved, reference});
        }
    }

    [[nodiscard]] const QList<ReferenceMapping> &next()
    {
        m_isThere = !m_isThere;
        return m_isThere ? m_there : m_back;
    }

private:
    QList<ReferenceMapping> m_there;
    QList<ReferenceMapping> m_back;
    bool m_isThere = false;
};

void addQueries(int samples, const std::string &label)
{
    const QByteArray bytes = Lifelike::document(samples, 4);
    const auto content = std::make_shared<Content>(load(bytes));
    // Who moves references edits the samples, and edited ones answer at another pace: thousands of runs that
    // were planned for the others never end.
    const auto moved = std::make_shared<Content>(load(bytes));
    const auto moves = std::make_shared<Moves>(*content);
    const auto edited = std::make_shared<Content>(load(bytes));
    edited->updateReferences(Moves(*content).next());
    const auto value = std::make_shared<PropertyEditorContent>(bytes);
    const Length length = samples < kLongWork ? Length::Short : Length::Long;
    const auto ask = [&](const std::string &what, const std::function<void()> &work) {
        add(what + "/" + label, work, length);
    };
    ask("allReferences", [=] { keep(content->allReferences()); });
    ask("updateReferences of all", [=] { moved->updateReferences(moves->next()); });
    ask("findProjects", [=] { keep(content->findProjects()); });
    ask("samplesMatchingRegExp", [=] {
        const PropertiesGetter getter(*value);
        keep(PropertiesGetter::samplesMatchingRegExp(getter.samples().constFirst(), QStringLiteral("*7")));
    });
    ask("detachedCopy", [=] { keep(edited->detachedCopy().hasError()); });
}

} // namespace

int main(int argc, char *argv[])
{
    QLoggingCategory::setFilterRules(QStringLiteral("orv.*.debug=false"));
    addQueries(1'000, "baseline");
    addQueries(10'000, "10,000 samples");
    addQueries(Lifelike::sized(100'000), "100,000 samples");

    const QByteArray proteins = Lifelike::proteins(20'000);
    add("load 20,000 proteins/baseline", [=] { keep(QJsonDocument::fromJson(proteins)); });
    add("load 20,000 proteins/object form", [=] { keep(load(proteins).count()); });
    add("load 20,000 proteins/value form", [=] { keep(PropertyEditorContent(proteins)); });
    const auto value = std::make_shared<PropertyEditorContent>(proteins);
    add("load 20,000 proteins/their FASTA text", [=] { keep(PropertiesGetter(*value).fastaContent()); });
    return runRatioBenchmarks(argc, argv, Clock::Processor);
}
