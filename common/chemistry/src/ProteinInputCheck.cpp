#include "internal/SampleIds.h"

#include <orv/chemistry/ProteinAutoPopulateOptions.h>
#include <orv/chemistry/ProteinUtils.h>

#include <QCoreApplication>
#include <QHash>
#include <QSet>

namespace orv::ProteinUtils {

namespace {

struct ProteinUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(ProteinUtils)
};

class Check
{
public:
    Check(const ProteinGenerator::InputOptions &options, const QList<int> &samplesIds)
        : m_options(options)
        , m_samplesIds(samplesIds.begin(), samplesIds.end())
        , m_factory(ChemicalFactory::defaultFactory())
    {}

    void run()
    {
        const Result<ChemicalFactory> factory = m_factory.withBuildingBlocks(m_options.buildingBlocks);
        if (factory.hasError())
            errors.append(texts(factory.error()));
        else
            m_factory = *factory;
        for (const Chain &chain : m_options.chains)
            checkChain(chain);
        for (const ProteinComplex &protein : m_options.proteins)
            checkProtein(protein);
        for (const Chain &chain : m_options.chains) {
            if (!m_usedNumbers.contains(chain.number) && !m_usedNames.contains(chain.name))
                warnings.append(ProteinUtilsTr::tr("No protein uses the chain \"%1\".").arg(chain.name));
        }
    }

    QStringList errors;
    QStringList warnings;

private:
    static QString texts(const Error &error)
    {
        return (error.errorMessages() + error.details()).join(QLatin1Char(' '));
    }

    void checkChain(const Chain &chain)
    {
        m_chains.insert(chain.number, &chain);
        if (!chain.id.isEmpty() && m_ids.contains(chain.id))
            warnings.append(ProteinUtilsTr::tr("Two chains have the id \"%1\".").arg(chain.id));
        if (m_names.contains(chain.name))
            warnings.append(ProteinUtilsTr::tr("Two chains have the name \"%1\".").arg(chain.name));
        m_ids.insert(chain.id);
        m_names.insert(chain.name);
        if (chain.sequence.trimmed().isEmpty()) {
            errors.append(ProteinUtilsTr::tr("The chain \"%1\" has no sequence.").arg(chain.name));
            return;
        }
        const Result<ChemicalFormula> formula =
            m_factory.formula(ProteinGenerator::cleanSequence(chain.sequence, chain.type), chain.type);
        if (formula.hasError())
            errors.append(ProteinUtilsTr::tr("The chain \"%1\" has no mass. %2")
                              .arg(chain.name, texts(formula.error())));
    }

    void checkProtein(const ProteinComplex &protein)
    {
        if (protein.name.trimmed().isEmpty())
            warnings.append(ProteinUtilsTr::tr("A protein has no name, so its masses can't be told apart."));
        for (int number : protein.chainNumbers)
            m_usedNumbers.insert(number);
        if (ProteinAutoPopulateOptions::mayConvert(protein.name))
            checkCombinations(protein);
        else if (protein.chainNumbers.isEmpty())
            errors.append(ProteinUtilsTr::tr("The protein \"%1\" has no chains.").arg(protein.name));
        checkDisulfides(protein);
        checkSamples(protein);
    }

    void checkCombinations(const ProteinComplex &protein)
    {
        const ProteinAutoPopulateOptions options =
            ProteinAutoPopulateOptions::fromString(protein.name).value();
        for (const ProteinAutoPopulateOptions::Part &part : options.parts())
            m_usedNames.insert(part.chain);
        const Result<QList<ProteinComplex>> proteins = options.proteins(m_options.chains);
        if (proteins.hasError())
            errors.append(texts(proteins.error()));
    }

    void checkDisulfides(const ProteinComplex &protein)
    {
        qint64 cysteines = 0;
        for (int number : protein.chainNumbers) {
            const Chain *chain = m_chains.value(number);
            if (chain && chain->type == ChainType::Protein)
                cysteines += chain->sequence.count(QLatin1Char('C'), Qt::CaseInsensitive);
        }
        if (2LL * protein.disulfides > cysteines) {
            errors.append(ProteinUtilsTr::tr("The protein \"%1\" has %2 disulfide bonds but %3 cysteines.")
                              .arg(protein.name)
                              .arg(protein.disulfides)
                              .arg(cysteines));
        }
    }

    void checkSamples(const ProteinComplex &protein)
    {
        const QList<int> gone = Internal::idsOutside(protein.samplesIds, m_samplesIds);
        if (gone.isEmpty())
            return;
        const bool all = gone.size() == protein.samplesIds.size();
        (all ? errors : warnings)
            .append(ProteinUtilsTr::tr("The protein \"%1\" is for the samples %2, which don't exist.")
                        .arg(protein.name, Internal::joinedNumbers(gone)));
    }

    const ProteinGenerator::InputOptions &m_options;
    const QSet<int> m_samplesIds;
    ChemicalFactory m_factory;
    QHash<int, const Chain *> m_chains;
    QSet<QString> m_ids;
    QSet<QString> m_names;
    QSet<int> m_usedNumbers;
    QSet<QString> m_usedNames;
};

} // namespace

bool validate(const ProteinGenerator::InputOptions &options, const QList<int> &samplesIds,
              QStringList *errors, QStringList *warnings)
{
    Check check(options, samplesIds);
    check.run();
    if (errors)
        errors->append(check.errors);
    if (warnings)
        warnings->append(check.warnings);
    return check.errors.isEmpty();
}

} // namespace orv::ProteinUtils
