// The progress window in front of the windows that start runs.
#include "ui/frmProgress.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QWindow>

#include "host/Kontext.h"
#include "support/Fenster_Test.h"

namespace marklink {
namespace {

frmProgress *Gezeigt() {
  for (QWidget *fenster : QApplication::topLevelWidgets())
    if (auto *form = qobject_cast<frmProgress *>(fenster); form != nullptr && form->isVisible()) return form;
  return nullptr;
}

/// A click as the desktop delivers it: one on a window that a modal one blocks goes nowhere.
bool Abbrechen_klicken() {
  frmProgress *form = Gezeigt();
  if (form == nullptr) return false;
  auto &knopf = test::Kind<QPushButton>(*form, u"cmdAbbrechen");
  QTest::mouseClick(form->windowHandle(), Qt::LeftButton, {}, knopf.mapTo(form, knopf.rect().center()));
  return std::exchange(Kontext.gAbbrechen, false);
}

TEST(frmProgress_Test, laesst_sich_vor_dem_Fenster_des_Laufs_abbrechen) {
  Fenster_Fortschritt fortschritt;
  QWidget erstes;
  erstes.setGeometry(0, 0, 300, 200);
  test::Zeigen(erstes);
  fortschritt.ProgressAnzeigen(u"Lauf"_qs, 3);
  EXPECT_TRUE(Abbrechen_klicken());
  fortschritt.Verbergen();

  // A modal window that the desktop has not made active, with the first one behind it.
  QDialog pult;
  pult.setModal(true);
  pult.setGeometry(400, 300, 300, 200);
  pult.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&pult));
  QApplication::setActiveWindow(nullptr);
  for (const char *lauf : {"first", "in one go with the first"}) {
    fortschritt.ProgressAnzeigen(u"Lauf"_qs, 3);
    EXPECT_TRUE(Abbrechen_klicken()) << lauf;
    EXPECT_LE((Gezeigt()->frameGeometry().center() - pult.frameGeometry().center()).manhattanLength(), 4)
        << lauf;
    Gezeigt()->activateWindow();
  }
  fortschritt.Verbergen();
}

}  // namespace
}  // namespace marklink
