// Translations for tests, installed as long as they live.
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QTranslator>

/// Translates every label of the driver to itself in angle brackets.
class BracketTranslator : public QTranslator
{
public:
    BracketTranslator() { QCoreApplication::installTranslator(this); }
    ~BracketTranslator() override { QCoreApplication::removeTranslator(this); }

    Q_DISABLE_COPY_MOVE(BracketTranslator)

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text,
                                    const char * /*disambiguation*/, int /*n*/) const override
    {
        return qstrcmp(context, "PrinterDriver") == 0 ? QString("<") + text + ">" : QString();
    }
};

/// Translates the driver's texts as a catalogue of a few entries does.
class Catalogue : public QTranslator
{
public:
    explicit Catalogue(const QHash<QByteArray, QString> &translations)
        : entries(translations)
    {
        QCoreApplication::installTranslator(this);
    }
    ~Catalogue() override { QCoreApplication::removeTranslator(this); }

    Q_DISABLE_COPY_MOVE(Catalogue)

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text,
                                    const char * /*disambiguation*/, int /*n*/) const override
    {
        return qstrcmp(context, "PrinterDriver") == 0 ? entries.value(text) : QString();
    }

private:
    QHash<QByteArray, QString> entries; // by their keys in UTF-8
};
