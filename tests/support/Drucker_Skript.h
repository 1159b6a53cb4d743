// Printers that need no machine.
#pragma once

#include <utility>

#include "ui/Drucker.h"

namespace marklink::test {

/// As long as it lives the machine has these printers.
class Drucker_Skript : public Drucker {
 public:
  explicit Drucker_Skript(QStringList Geraete) : Geraete_(std::move(Geraete)) { Drucker_setzen(this); }
  ~Drucker_Skript() override { Drucker_setzen(nullptr); }
  Drucker_Skript(const Drucker_Skript &) = delete;
  Drucker_Skript &operator=(const Drucker_Skript &) = delete;

  Druckereinstellung Form;  ///< of every one of them
  QStringList Namen() const override { return Geraete_; }
  QString Standard() const override { return Geraete_.value(0); }
  Druckereinstellung Einstellung(const QString &Name) const override {
    Druckereinstellung form = Form;
    form.DeviceName = Name;
    return form;
  }

 private:
  QStringList Geraete_;
};

}  // namespace marklink::test
