#include "widgets/sortheader.h"

#include "support/testmain.h"

#include <QImage>
#include <QStandardItemModel>
#include <QTableView>

using namespace tessera;

class SortHeaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_model = std::make_unique<QStandardItemModel>(1, 3);
        m_model->setHorizontalHeaderLabels({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        m_table = std::make_unique<QTableView>();
        m_header = new SortHeader;
        m_table->setHorizontalHeader(m_header);
        m_table->setSortingEnabled(true);
        m_table->setModel(m_model.get());
        m_table->resize(400, 200);
        m_table->show();
    }
    void cleanup()
    {
        m_table.reset();
        m_model.reset();
    }

    void theSecondColumnHasAnArrowAtItsRight_data()
    {
        QTest::addColumn<Qt::SortOrder>("order");
        QTest::newRow("upwards") << Qt::AscendingOrder;
        QTest::newRow("downwards") << Qt::DescendingOrder;
    }
    void theSecondColumnHasAnArrowAtItsRight()
    {
        QFETCH(Qt::SortOrder, order);
        const QImage before = drawn();
        mark(1, order);
        const QRect changed = difference(before, drawn());
        QVERIFY(!changed.isEmpty());
        const int right = m_header->sectionViewportPosition(1) + m_header->sectionSize(1);
        QVERIFY(changed.right() < right);
        QVERIFY(changed.left() >= right - 18);
    }

    void itsArrowTellsTheDirection()
    {
        mark(1, Qt::AscendingOrder);
        const QImage upwards = drawn();
        mark(1, Qt::DescendingOrder);
        QVERIFY(!difference(upwards, drawn()).isEmpty());
    }

    void theOthersAreDrawnAsEver()
    {
        m_table->setHorizontalHeader(new QHeaderView(Qt::Horizontal));
        const QImage plain = m_table->horizontalHeader()->grab().toImage();
        m_table->setHorizontalHeader(m_header = new SortHeader);
        m_header->show();
        QCOMPARE(drawn(), plain);
    }

    void aClickSorts()
    {
        QTest::mouseClick(m_header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(m_header->sectionViewportPosition(1) + 20, m_header->height() / 2));
        QCOMPARE(m_header->sortIndicatorSection(), 1);
    }

private:
    void mark(int column, Qt::SortOrder order)
    {
        m_model->setHeaderData(column, Qt::Horizontal, int{order}, SortHeader::SecondSortRole);
    }

    QImage drawn() const { return m_header->grab().toImage(); }

    static QRect difference(const QImage& one, const QImage& other)
    {
        QRect changed;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                if (one.pixel(x, y) != other.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
            }
        }
        return changed;
    }

    std::unique_ptr<QStandardItemModel> m_model;
    std::unique_ptr<QTableView> m_table;
    SortHeader* m_header = nullptr;
};

TESSERA_TEST(SortHeaderTest);
#include "sortheadertest.moc"
