#pragma once

#include "platform/desktop.h"
#include "platform/recentdocuments.h"

#include <QHash>

#include <memory>

class QSoundEffect;

namespace tessera {

/// The real desktop, through Qt. Sounds come from the program's resources and are loaded when first heard.
class QtDesktop : public Desktop
{
public:
    explicit QtDesktop(RecentDocuments& recent);

    void beep() override;
    void playSound(const QString& name) override;
    int runAlert(const Alert& alert) override;
    std::optional<QString> openPanel(const OpenRequest& request) override;
    std::optional<QString> savePanel(const SaveRequest& request) override;
    std::optional<QString> colorPanel(const ColorRequest& request) override;
    bool presentError(const QString& message, const QString& informative,
                      const std::vector<Recovery>& recoveries) override;
    bool reveal(const QString& path) override;
    bool openFolder(const QString& path) override;
    bool openWith(const QString& path, const QString& application) override;
    bool openUrl(const QUrl& url) override;
    bool askToClose(qint64 process) override;
    void noteRecent(const QString& path) override;
    void log(const QString& line) override;
    QDateTime now() const override;

private:
    RecentDocuments& m_recent;
    QHash<QString, std::shared_ptr<QSoundEffect>> m_sounds;
};

} // namespace tessera
