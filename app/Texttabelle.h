// A table of text for the terminal.
#pragma once

#include <QStringList>
#include <vector>

#include "Ausgabe.h"

namespace marklink {

/// Columns of text; what is right-aligned stands under the end of its title.
class Texttabelle {
 public:
  struct Spalte {
    QString Titel;
    bool Rechts = false;
  };

  explicit Texttabelle(std::vector<Spalte> Spalten) : Spalten_(std::move(Spalten)) {
    QStringList titel;
    for (const Spalte &s : Spalten_) titel << s.Titel;
    Zeilen_.push_back(titel);
  }

  void Zeile(QStringList Zellen) {
    for (QString &zelle : Zellen) zelle = Anzeigbar(zelle);
    Zeilen_.push_back(std::move(Zellen));
  }

  QString Text(const QString &Einzug = {}) const {
    std::vector<qsizetype> breiten(Spalten_.size(), 0);
    for (const QStringList &zeile : Zeilen_)
      for (size_t i = 0; i < breiten.size(); ++i) breiten[i] = qMax(breiten[i], zeile[qsizetype(i)].size());
    QStringList zeilen;
    for (const QStringList &zeile : Zeilen_) {
      QStringList zellen;
      for (size_t i = 0; i < breiten.size(); ++i) {
        const QString &z = zeile[qsizetype(i)];
        zellen << (Spalten_[i].Rechts ? z.rightJustified(breiten[i]) : z.leftJustified(breiten[i]));
      }
      QString text = Einzug + zellen.join(QLatin1String("  "));
      while (text.endsWith(u' ')) text.chop(1);
      zeilen << text;
    }
    return zeilen.join(u'\n');
  }

 private:
  std::vector<Spalte> Spalten_;
  std::vector<QStringList> Zeilen_;
};

}  // namespace marklink
