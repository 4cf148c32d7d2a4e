#pragma once

#include "catalogue/storedcatalogue.h"
#include "core/failure.h"
#include "launch/emulatorprocess.h"

#include <QDateTime>
#include <QObject>
#include <QTimer>

#include <expected>
#include <memory>

namespace tessera {

class ListxmlConverter;
class TitleTable;

/// Builds the catalogue from an emulator: runs it with -listxml and converts what it prints while it prints
/// it. The file is replaced in one step, and only by the whole list of an emulator that ended well; after
/// anything else the old one stands. Every outcome comes with a signal, from the event loop.
class CatalogueBuild : public QObject
{
    Q_OBJECT

public:
    explicit CatalogueBuild(QObject* parent = nullptr);
    /// A run that is still going is killed.
    ~CatalogueBuild() override;

    /// `titles` is the title list, or empty; one that cannot be read is done without, see titlesFailure(). A
    /// file that is replaced is kept under a name with the date. Not while another run goes on.
    void start(const QString& emulator, const QString& output, const QString& titles = {},
               const QDateTime& date = QDateTime::currentDateTime());
    /// The emulator is asked to end, and killed when it does not; then comes cancelled().
    void cancel();
    bool isRunning() const { return m_converter != nullptr; }
    /// Why the title list of this run, or the last one, could not be read.
    const std::optional<Failure>& titlesFailure() const { return m_titlesFailure; }
    /// The catalogue that the last run has written, as it was read back; given once.
    StoredCatalogue takeStored() { return std::move(m_stored); }
    /// Where the file lies that the last run replaced; empty where there was none.
    const QString& keptAs() const { return m_keptAs; }

Q_SIGNALS:
    void progress(int machines);
    void finished(int machines);
    void failed(const tessera::Failure& failure);
    void cancelled();

private:
    void readTitleList(const QString& path);
    std::optional<Failure> obstacle() const;
    void read();
    void readErrors();
    void conclude(int status, QProcess::ExitStatus how);
    std::expected<int, Failure> result(int status, QProcess::ExitStatus how);
    QString lastWords() const;
    void fail(const Failure& failure);
    void letGo();

    EmulatorProcess m_process;
    QTimer m_grace; ///< runs while a cancelled emulator may still end by itself
    std::unique_ptr<TitleTable> m_titles;
    std::unique_ptr<ListxmlConverter> m_converter;
    QString m_emulator;
    QString m_output;
    QDateTime m_date;
    QString m_keptAs;
    StoredCatalogue m_stored;
    QByteArray m_errors; ///< the last of what was printed on standard error
    std::optional<Failure> m_failure;
    std::optional<Failure> m_titlesFailure;
    bool m_printed = false;
    bool m_isCancelled = false;
};

} // namespace tessera
