#pragma once

#include "support/testmain.h"

#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace tessera::test {

/// The program itself, run as from a shell, with a home of its own for each test.
class StagedVerbs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

protected:
    struct Outcome {
        int status = -1; ///< -1 where the program crashed
        QByteArray out;
        QByteArray err;
    };
    Outcome tessera(const QStringList& arguments) const;
    /// One sentence, and nothing done.
    void expectRefusal(const QStringList& arguments, const char* sentence) const;
    /// What the verb prints of the catalogue "store.xml".
    QByteArray listed(const QString& format = QStringLiteral("tsv")) const;

    QString path(const QString& name) const { return m_folder->filePath(name); }
    void write(const QString& name, const QByteArray& bytes) const;
    QByteArray read(const QString& name) const;

    QString settingsPath() const { return path(QStringLiteral("XDG_CONFIG_HOME/Tessera/Tessera.ini")); }
    /// Where the program itself looks for one.
    void writeCatalogue() const;
    void writeStoreOf(const QString& name, const std::vector<std::string>& sets) const;
    void writeOldFavourites(const QByteArrayList& names) const;
    /// The settings name the program that plays the emulator.
    void useStandIn() const;
    /// The program finds none of the emulators that are installed here, where something may be mounted over
    /// them.
    void hideEmulators();

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcessEnvironment m_environment;

private:
    bool m_hidesEmulators = false;
};

} // namespace tessera::test
