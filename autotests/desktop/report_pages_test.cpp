// The printed reports as real pages: a machine without a printer gets them in a PDF file.
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "adapters/qt/qt_page_printer.h"
#include "adapters/qt/qt_text.h"
#include "autotests/desktop/desktop_fixture.h"
#include "autotests/reports/report_fixture.h"

namespace lorimet::testing_support {
namespace {

class ReportPagesTest : public ReportTest {
 protected:
  void SetUp() override {
    ReportTest::SetUp();
    Start();
    process.folder = FromQString(folder_.path());
    WizardVin() = "1NL4S2M30A0012345";
    Ecu().bNumSensors.Store(4);
    Ecu().bNumModulators.Store(2);
    Ecu().Manufacturer.Store("NORTHLEA TRAILERS");
    Ecu().VehicleId.Store("1NL4S2M30A0012345");
    Ecu().TrailerType.Store("CURTAIN SIDER 13.6");
    Ecu().SWRev.Store("3.07");
    Ecu().PartNum.Store("4005001230");
    Ecu().SerialNum.Store("000417723518");
    Ecu().MfgDate.Store("14/2024");
    Results().nPressureTest = Results().nRedundancyTest = Results().nSensorTest = kTestPassed;
    Results().nLampTest = kTestPassed;
    Results().dMaxSpeed = {0.0, 0.0, 6.9, 7.0, 7.1, 7.0};
  }

  // The number of pages in the file that the report makes.
  int PagesOf(std::int16_t kind) {
    const ReportParts& all = Parts();
    QtPagePrinter pages;
    if (pages.HasPrinter()) return -1;
    PrintEOLReport({all.desktop, all.clock, all.process, all.text_files, pages, all.dictionary,
                    all.main_form, all.message_center, all.records, all.faults, all.fault_table,
                    all.test_results, all.strTrailerVIN},
                   kind);
    const Boxes boxes = desktop.TakeBoxes();
    EXPECT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes.at(0).icon, BoxIcon::kInformation) << boxes.at(0).text;
    QFile file(folder_.filePath("1NL4S2M30A0012345.pdf"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression kPage("/Type\\s*/Page\\b");
    return static_cast<int>(QString::fromLatin1(file.readAll()).count(kPage));
  }

  QTemporaryDir folder_;
};

TEST_F(ReportPagesTest, ATestedTrailerFitsOnOnePage) {
  if (QtPagePrinter().HasPrinter()) GTEST_SKIP() << "this machine has a printer";
  EXPECT_EQ(PagesOf(-1), 1);
}

TEST_F(ReportPagesTest, TwoHundredFaultsTakeSeveralPages) {
  if (QtPagePrinter().HasPrinter()) GTEST_SKIP() << "this machine has a printer";
  std::vector<FaultRecord> faults;
  for (int i = 0; i < 200; ++i) faults.push_back({0, 3 + i % 100, i % 12, 0, i % 2, i});
  Hold(faults);
  EXPECT_GE(PagesOf(0), 3);
}

}  // namespace
}  // namespace lorimet::testing_support
