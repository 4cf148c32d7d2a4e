#pragma once

#include "stagedapp.h"

#include "app/desks/finding.h"
#include "app/windows/mainwindow.h"
#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/filterpanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/searchfield.h"
#include "support/writestore.h"

#include <QHeaderView>
#include <QLabel>
#include <QTest>

namespace tessera::test {

inline GameRecord machine(std::string_view type, std::string_view name, std::string_view cloneof,
                          std::string_view title, std::string_view titlejp, std::string_view year,
                          std::string_view maker, std::string_view status)
{
    return GameRecord{{type, name, cloneof, title, titlejp, year, maker, status, ""}};
}

inline const std::array machines{
    machine("game", "nemesis", "nemesis", "Nemesis (World)", "ネメシス", "1985", "Konami", "imperfect"),
    machine("game", "gradius", "nemesis", "Gradius (Japan)", "グラディウス", "1985", "Konami", "good"),
    machine("game", "gradius3", "gradius3", "Gradius III (World)", "グラディウスIII", "1989", "Konami",
            "preliminary"),
    machine("game", "puckman", "puckman", "Puck Man (Japan)", "パックマン", "1980", "Namco", "good"),
    machine("game", "pacman", "puckman", "Pac-Man (Midway)", "パックマン", "1980", "Midway", "good"),
    machine("bios", "neogeo", "neogeo", "Neo-Geo", "ネオジオ", "1990", "SNK", "good"),
    machine("device", "cdr", "cdr", "CD-ROM drive", "", "", "", ""),
    machine("mechanical", "jp", "jp", "Jackpot", "Jackpot", "1980", "Prológica", "preliminary"),
};

inline const QString all = QStringLiteral("cdr gradius gradius3 jp nemesis neogeo pacman puckman");

/// The whole program over eight machines that searches and filters tell apart.
class StagedFinding : public QObject
{
protected:
    void stage()
    {
        m_staged = std::make_unique<StagedApp>();
        QVERIFY(tessera::writeStore(m_staged->storePath(), machines));
        start();
    }

    void start()
    {
        m_staged->start();
        window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
    }

    MainWindow& window() const { return m_staged->app->mainWindow(); }
    GameListController& list() const { return m_staged->app->gameList(); }
    GameFinder& finder() const { return m_staged->app->finding().finder(); }
    FilterPanel& panel() const { return m_staged->app->finding().panel(); }
    SearchField* field() const { return window().searchField; }
    void search(const QString& text) { field()->setText(text); }

    QString count() const { return window().findChild<QLabel*>(QStringLiteral("countLabel"))->text(); }

    QAbstractButton* chip(Chip chip) const
    {
        for (const ChipRow& row : chips) {
            if (row.chip == chip)
                return window().chipBar->findChild<QAbstractButton*>(
                    QString(QStringLiteral("chip_")
                            + QString::fromUtf8(row.name.data(), qsizetype(row.name.size()))));
        }
        return nullptr;
    }

    void click(Chip which) { QTest::mouseClick(chip(which), Qt::LeftButton); }

    void clickHeader(int column)
    {
        QHeaderView* header = window().gameTable->horizontalHeader();
        const QPoint place(header->sectionViewportPosition(column) + 20, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }

    static void touch(const QString& path)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    QString shown() const
    {
        QStringList names;
        const QAbstractItemModel* model = list().model();
        const int column = GameTableModel::columnOf(Field::Name);
        for (int row = 0; row < model->rowCount(); ++row)
            names << model->index(row, column).data(Qt::EditRole).toString();
        return names.join(u' ');
    }

    std::unique_ptr<StagedApp> m_staged;
};

} // namespace tessera::test
