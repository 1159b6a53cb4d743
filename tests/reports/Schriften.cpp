// Pages need fonts, and fonts an application; a screen they do not need.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <memory>

namespace {

class Schriften : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Programm_ = std::make_unique<QGuiApplication>(Anzahl_, Worte_);
  }
  void TearDown() override { Programm_.reset(); }

 private:
  char Name_[5] = "test";
  char *Worte_[2] = {Name_, nullptr};
  int Anzahl_ = 1;
  std::unique_ptr<QGuiApplication> Programm_;
};

[[maybe_unused]] testing::Environment *const Angemeldet = testing::AddGlobalTestEnvironment(new Schriften);

}  // namespace
