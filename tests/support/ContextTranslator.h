#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// While it lives, every translated text shows its context: "Context|text".
class ContextTranslator : public QTranslator
{
public:
    ContextTranslator() { QCoreApplication::installTranslator(this); }
    ~ContextTranslator() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(ContextTranslator)

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *sourceText, const char * /*hint*/,
                                    int /*n*/) const override
    {
        return QString::fromUtf8(context) + QLatin1Char('|') + QString::fromUtf8(sourceText);
    }
};
