// A client on the embedded engine: files of its own.
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "Mandantenablage.h"
#include "host/Ini.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

class Dateien final : public Mandantenablage {
 public:
  explicit Dateien(const Mandantenplan &Plan) : Plan_(Plan) {}

  QString Ordner() const override {
    return Plan_.Typ == 0 ? Plan_.Ordner : Serverzugang_lesen(Kontext.gHostkonfiguration).Adresse;
  }
  QString Pruefen() const override {
    for (const auto &[name, ziel] : Alle())
      if (QFileInfo::exists(ziel)) return QStringLiteral("Die Datei '%1' ist schon vorhanden.").arg(ziel);
    const QString anbieter = Ini_lesen(Kontext.gHostkonfiguration, QStringLiteral("Provider"),
                                       Plan_.Typ == 0 ? QStringLiteral("access") : QStringLiteral("sql"));
    if (Ist_eingebettet(anbieter)) return {};
    return QStringLiteral(
        "Die Hostkonfiguration nennt einen fremden Datenbankanbieter; dort kann kein Mandant angelegt "
        "werden.");
  }
  QString Ablegen(const QString &Werkstatt, Ruecknahme &Zurueck) override {
    for (const auto &[name, ziel] : Alle()) {
      // Never replaces a file that came meanwhile.
      if (!QFile::rename(Werkstatt + QDir::separator() + name, ziel))
        return QStringLiteral("Die Datei '%1' konnte nicht angelegt werden.").arg(ziel);
      Zurueck.Merken([datei = ziel] { QFile::remove(datei); });
      // Customers, bank data and the shop's password lie here: the files are their owner's alone.
      QFile::setPermissions(ziel, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
    return {};
  }

 private:
  struct Datei {
    QString Name, Ziel;
  };
  std::vector<Datei> Alle() const {
    const QString mdb = Plan_.Name + QStringLiteral(".mdb"), afk = Plan_.Name + QStringLiteral(".afk");
    std::vector<Datei> alle{{mdb, Ordner() + QDir::separator() + mdb}};
    if (Plan_.Typ == 0) alle.push_back({afk, Plan_.Ordner + QDir::separator() + afk});
    return alle;
  }

  const Mandantenplan &Plan_;
};

}  // namespace

std::unique_ptr<Mandantenablage> Ablage_in_Dateien(const Mandantenplan &Plan) {
  return std::make_unique<Dateien>(Plan);
}

std::unique_ptr<Mandantenablage> Mandantenablage_waehlen(const Mandantenplan &Plan) {
  Serverzugang zugang = Serverzugang_lesen(Kontext.gHostkonfiguration);
  if (Plan.Typ == 0 || (!Plan.Server && !Ist_Server(zugang.Anbieter))) return Ablage_in_Dateien(Plan);
  if (!Plan.Server) return Ablage_auf_Server(Plan, zugang);
  const QString bisher = zugang.Anbieter;
  const int wartezeit = zugang.Wartezeit;
  zugang = *Plan.Server;
  if (zugang.Wartezeit == 0) zugang.Wartezeit = wartezeit;
  zugang.Anbieter = Ist_eingebettet(bisher) ? QStringLiteral("SQLOLEDB.1") : bisher;
  return Ablage_auf_Server(Plan, zugang);
}

}  // namespace marklink
