// The demo customers: private people and companies at home and abroad, all invented.
#include "Demo_Teile.h"

namespace marklink::demo {

namespace {

struct Ort {
  int Land, Bundesland;
  const char16_t *Plz, *Name;
};

const std::vector<Ort> &Orte_deutsch() {
  static const std::vector<Ort> Liste{
      {81, 85, u"20095", u"Hamburg"},
      {81, 81, u"80331", u"München"},
      {81, 88, u"50667", u"Köln"},
      {81, 82, u"10115", u"Berlin"},
      {81, 86, u"60311", u"Frankfurt am Main"},
      {81, 80, u"70173", u"Stuttgart"},
      {81, 91, u"04109", u"Leipzig"},
      {81, 91, u"01067", u"Dresden"},
      {81, 94, u"99084", u"Erfurt"},
      {81, 93, u"24103", u"Kiel"},
      {81, 84, u"28195", u"Bremen"},
      {81, 79, u"30159", u"Hannover"},
      {81, 88, u"48143", u"Münster"},
      {81, 81, u"93047", u"Regensburg"},
      {81, 81, u"97070", u"Würzburg"},
      {81, 80, u"73728", u"Esslingen am Neckar"},
      {81, 79, u"37073", u"Göttingen"},
      {81, 80, u"79098", u"Freiburg im Breisgau"},
      {81, 90, u"66111", u"Saarbrücken"},
      {81, 87, u"18055", u"Rostock"},
      {81, 88, u"40213", u"Düsseldorf"},
      {81, 93, u"23552", u"Lübeck"},
      {81, 81, u"87435", u"Kempten (Allgäu)"},
      {81, 79, u"49074", u"Osnabrück"},
      {81, 80, u"88662", u"Überlingen"},
      {81, 83, u"03046", u"Cottbus"},
      {81, 89, u"55116", u"Mainz"},
      {81, 92, u"39104", u"Magdeburg"},
      {81, 79, u"29525", u"Uelzen"},
      {81, 79, u"21335", u"Lüneburg"},
  };
  return Liste;
}
const std::vector<Ort> &Orte_oesterreich() {
  static const std::vector<Ort> Liste{{14, 95, u"1010", u"Wien"},       {14, 98, u"5020", u"Salzburg"},
                                      {14, 101, u"6020", u"Innsbruck"}, {14, 100, u"8010", u"Graz"},
                                      {14, 97, u"4020", u"Linz"},       {14, 103, u"6850", u"Dornbirn"}};
  return Liste;
}
const std::vector<Ort> &Orte_schweiz() {
  static const std::vector<Ort> Liste{{204, 129, u"8001", u"Zürich"}, {204, 107, u"3011", u"Bern"},
                                      {204, 109, u"4051", u"Basel"},  {204, 119, u"9000", u"St. Gallen"},
                                      {204, 115, u"6003", u"Luzern"}, {204, 113, u"7000", u"Chur"}};
  return Liste;
}

QString Text(const char16_t *T) { return QString::fromUtf16(T); }

const std::vector<const char16_t *> &Vornamen(bool Frau) {
  static const std::vector<const char16_t *> Frauen{
      u"Anna",    u"Bärbel", u"Zoë",  u"Käthe", u"Jördis", u"Renée",  u"Sabine", u"Friederike", u"Hannelore",
      u"Mareike", u"Grete",  u"Ines", u"Silke", u"Ayla",   u"Ulrike", u"Petra",  u"Lieselotte", u"Nele"};
  static const std::vector<const char16_t *> Maenner{
      u"Jürgen", u"Günther", u"Björn",  u"Sönke", u"Karl-Heinz", u"Matthias", u"Jörg",   u"André", u"Hinnerk",
      u"Ömer",   u"Rüdiger", u"Volker", u"Lukas", u"Götz",       u"Thilo",    u"Stefan", u"Bernd", u"Konrad"};
  return Frau ? Frauen : Maenner;
}
const std::vector<const char16_t *> &Nachnamen() {
  static const std::vector<const char16_t *> Liste{
      u"Müller-Ahrendt", u"Weißgerber",  u"Schäferling", u"Großkopf",    u"Köhnemann",  u"Jägersberg",
      u"Süßmilch",       u"Hübschmann",  u"Böttcherius", u"Krähenbühl",  u"Lüttjohann", u"Möhrle",
      u"Nußbaumer",      u"Oelschläger", u"Pfützner",    u"Quandtmeyer", u"Rößler",     u"Strübing",
      u"Tönnies",        u"Überhorst",   u"Vögelein",    u"Wüstefeld",   u"Zöpfgen",    u"Brandhorst",
      u"Dierksen",       u"Eckermann",   u"Feldhus",     u"Gerstenkorn", u"Haverkamp",  u"Imhäuser"};
  return Liste;
}
const std::vector<const char16_t *> &Strassen() {
  static const std::vector<const char16_t *> Liste{
      u"Lindenstraße", u"Am Mühlbach",       u"Königsallee",
      u"Schützenweg",  u"Große Gasse",       u"Bürgermeister-Höß-Straße",
      u"Ährenweg",     u"Zum Alten Deich",   u"Birkenweg",
      u"Goethestraße", u"Hinter der Kirche", u"Rosengässchen",
      u"Färbergraben", u"Ölmühlenstraße",    u"Platz der Künste",
      u"Jägerstieg",   u"Marktstraße",       u"Fährhausweg"};
  return Liste;
}

/// Lower case, umlauts written out, anything else than letters dropped.
QString Mailteil(const QString &Name) {
  QString Ergebnis;
  for (const QChar Z : Name.toLower()) {
    switch (Z.unicode()) {
      case u'ä':
        Ergebnis += QStringLiteral("ae");
        break;
      case u'ö':
        Ergebnis += QStringLiteral("oe");
        break;
      case u'ü':
        Ergebnis += QStringLiteral("ue");
        break;
      case u'ß':
        Ergebnis += QStringLiteral("ss");
        break;
      case u'ø':
        Ergebnis += QLatin1Char('o');
        break;
      case u'æ':
        Ergebnis += QStringLiteral("ae");
        break;
      default: {
        const QChar Grund = Z.decomposition().isEmpty() ? Z : Z.decomposition().at(0);
        if ((Grund >= QLatin1Char('a') && Grund <= QLatin1Char('z')) || Grund == QLatin1Char('-'))
          Ergebnis += Grund;
      }
    }
  }
  return Ergebnis;
}

/// Numbers that the regulators keep free for films and books, where a country has such.
QString Telefonnummer(int Land, Zufall &Z) {
  const QString Drei = QStringLiteral("%1").arg(Z.unter(1000), 3, 10, QLatin1Char('0'));
  switch (Land) {
    case 81:
      return Z.trifft(50) ? QStringLiteral("030 23125 ") + Drei : QStringLiteral("0221 4710 ") + Drei;
    case 14:
      return QStringLiteral("+43 1 000 0") + Drei;
    case 204:
      return QStringLiteral("+41 44 000 0") + Drei;
    case 73:
      return QStringLiteral("+33 1 99 00 0") + Drei.left(1) + QLatin1Char(' ') + Drei.mid(1);
    case 222:
      return QStringLiteral("+44 20 7946 0") + Drei;
    case 223:
      return QStringLiteral("+1 503 555 0") + QString::number(100 + Z.unter(100));
    default:
      return QStringLiteral("+00 000 ") + Drei;
  }
}

QDateTime Anlagezeit(const QDate &Heute, Zufall &Z) {
  return QDateTime(Heute.addDays(-Z.zwischen(200, 800)), QTime(Z.zwischen(7, 22), Z.unter(60), Z.unter(60)));
}

Kunde Privatkunde(const Demodaten &D, const Ort &O, Zufall &Z) {
  Kunde K{};
  K.Id = 2 + static_cast<int>(D.Kunden.size());
  const bool Frau = Z.trifft(50);
  K.Adresse.Geschlecht = Frau ? QStringLiteral("f") : QStringLiteral("m");
  K.Adresse.Vorname = Text(Z.aus(Vornamen(Frau)));
  K.Adresse.Nachname = Text(Z.aus(Nachnamen()));
  K.Adresse.Strasse = Text(Z.aus(Strassen())) + QLatin1Char(' ') + QString::number(Z.zwischen(1, 120));
  if (Z.trifft(8)) K.Adresse.Strasse += QLatin1Char('a');
  if (Z.trifft(10)) K.Adresse.Zusatz = QStringLiteral("3. Obergeschoss links");
  K.Adresse.Plz = Text(O.Plz);
  K.Adresse.Ort = Text(O.Name);
  K.Adresse.Bundesland = O.Bundesland;
  K.Adresse.Land = O.Land;
  K.Gruppe = Z.trifft(25) ? Stammkunde : Neuer_Kunde;
  K.Email = QStringLiteral("%1.%2%3@example.%4")
                .arg(Mailteil(K.Adresse.Vorname), Mailteil(K.Adresse.Nachname))
                .arg(K.Id)
                .arg(Z.trifft(50) ? QStringLiteral("com") : QStringLiteral("org"));
  K.Telefon = Telefonnummer(O.Land, Z);
  if (K.Gruppe == Stammkunde) K.Kundennummer = QStringLiteral("K%1").arg(10000 + K.Id);
  if (Z.trifft(60)) K.Geboren = QDate(1950 + Z.unter(55), 1 + Z.unter(12), 1 + Z.unter(28));
  K.Angelegt = Anlagezeit(D.Heute, Z);
  K.Newsletter = Z.trifft(30);
  return K;
}

// Somebody whose address does not come from the pools: companies and people abroad.
struct Festzeile {
  int Gruppe;
  const char16_t *Firma, *Geschlecht, *Vorname, *Nachname, *Strasse, *Plz, *Ort;
  int Land, Bundesland;
  const char *Ust_Id;
};
const std::vector<Festzeile> &Festtafel() {
  static const std::vector<Festzeile> Tafel{
      {Haendler, u"Heidekraut Naturwaren GmbH", u"f", u"Wiebke", u"Lührßen", u"Bahnhofstraße 12", u"29614",
       u"Soltau", 81, 79, "DE299000011"},
      {Haendler, u"Gebrüder Öhlschläger OHG", u"m", u"Gerd", u"Öhlschläger", u"Industriestraße 4-6", u"72764",
       u"Reutlingen", 81, 80, "DE299000028"},
      {Haendler, u"Zeltstadt Müritz e. K.", u"m", u"Torsten", u"Päplow", u"Strandweg 1", u"17192",
       u"Waren (Müritz)", 81, 87, "DE299000036"},
      {Haendler, u"Bergfreunde Füssener Land GmbH & Co. KG", u"f", u"Veronika", u"Höß", u"Lechhalde 9",
       u"87629", u"Füssen", 81, 81, "DE299000044"},
      {Haendler, u"Küchenstübchen Ahrens", u"f", u"Dörte", u"Ahrens", u"Süderstraße 77", u"25813", u"Husum",
       81, 93, "DE299000052"},
      {Haendler, u"Gartencenter Spreeaue GmbH", u"m", u"René", u"Nowack", u"Am Spreebogen 3", u"03046",
       u"Cottbus", 81, 83, "DE299000060"},
      {Haendler, u"Wandervogel Ausrüstung UG", u"m", u"Malte", u"Grünewald", u"Große Bergstraße 221",
       u"22767", u"Hamburg", 81, 85, "DE299000078"},
      {Neuer_Kunde, u"Kindergarten Löwenzahn e. V.", u"f", u"Christel", u"Bäumler", u"Schulgässle 2",
       u"89073", u"Ulm", 81, 80, ""},
      {Haendler_EU, u"Alpinbedarf Tschögl GmbH", u"m", u"Alois", u"Tschögl", u"Maria-Theresien-Straße 18",
       u"6020", u"Innsbruck", 14, 101, "ATU99000012"},
      {Haendler_EU, u"Naturkost Wörthersee KG", u"f", u"Elfriede", u"Käfer", u"Seepromenade 5", u"9500",
       u"Villach", 14, 99, "ATU99000029"},
      {Haendler_EU, u"L'Atelier du Plein Air SARL", u"f", u"Aurélie", u"Béranger",
       u"14 rue de la Forêt-Noire", u"67000", u"Strasbourg", 73, 0, "FR00990000138"},
      {Haendler_EU, u"Kampeerhuis De Zilvermeeuw B.V.", u"m", u"Joost", u"van der Weijden", u"Havenstraat 31",
       u"1781 AA", u"Den Helder", 150, 0, "NL990000112B01"},
      {Haendler_EU, u"Friluftsliv Århus ApS", u"m", u"Søren", u"Kjærgaard", u"Åboulevarden 44", u"8000",
       u"Aarhus C", 57, 0, "DK99000018"},
      {Haendler_EU, u"Bozner Bergladen d. H. Plöner", u"m", u"Hannes", u"Plöner", u"Laubengasse 8", u"39100",
       u"Bozen", 105, 0, "IT99000000123"},
      {Haendler_EU, u"Maison Champêtre S.à r.l.", u"f", u"Françoise", u"Muller-Thill", u"7, Grand-Rue",
       u"1661", u"Luxembourg", 124, 0, "LU99000017"},
      {Neuer_Kunde, u"Bergführerbüro Rätia", u"m", u"Gian-Andrea", u"Caflisch", u"Obere Gasse 21", u"7000",
       u"Chur", 204, 113, "CHE-990.000.117"},
      {Neuer_Kunde, u"", u"f", u"Élodie", u"Châtelain", u"3 quai des Célestins", u"69002", u"Lyon", 73, 0,
       ""},
      {Neuer_Kunde, u"", u"m", u"Guus", u"Brouwershaven", u"Oudegracht 208", u"3511 NR", u"Utrecht", 150, 0,
       ""},
      {Neuer_Kunde, u"", u"f", u"Philippa", u"Hartley-Moss", u"18 Harbourside Walk", u"BS1 4DJ", u"Bristol",
       222, 0, ""},
      {Neuer_Kunde, u"", u"m", u"Patrick", u"O'Donnellan", u"5 Mill Lane", u"LS1 4DY", u"Leeds", 222, 0, ""},
      {Neuer_Kunde, u"", u"f", u"Bodil", u"Ravnskjær", u"Vestergade 16", u"5000", u"Odense C", 57, 0, ""},
      {Neuer_Kunde, u"", u"m", u"Walter J.", u"Kessenich", u"1420 NW Lumber Street", u"97205", u"Portland",
       223, 43, ""},
      {Neuer_Kunde, u"", u"f", u"Meredith", u"Oakhurst", u"88 Lakeshore Drive", u"53703", u"Madison", 223, 64,
       ""},
      {Neuer_Kunde, u"", u"m", u"Åke", u"Lindströmer", u"Södra Vägen 9", u"411 03", u"Göteborg", 203, 0, ""},
      {Neuer_Kunde, u"", u"f", u"Begoña", u"Ibáñez Peñalver", u"Calle Olmo 12, 3º B", u"28012", u"Madrid",
       195, 0, ""},
      {Neuer_Kunde, u"", u"m", u"Florin", u"Marxer-Hilti", u"Landstrasse 40", u"9490", u"Vaduz", 122, 0, ""},
  };
  return Tafel;
}

Kunde Festkunde(const Demodaten &D, const Festzeile &F, Zufall &Z) {
  Kunde K{};
  K.Id = 2 + static_cast<int>(D.Kunden.size());
  K.Gruppe = F.Gruppe;
  K.Adresse = {
      Text(F.Geschlecht), Text(F.Firma), Text(F.Vorname), Text(F.Nachname), Text(F.Strasse), {}, Text(F.Plz),
      Text(F.Ort),        F.Bundesland,  F.Land};
  const QString Mailname = Mailteil(K.Adresse.Nachname);
  K.Email = K.Adresse.Firma.isEmpty()
                ? Mailteil(K.Adresse.Vorname) + QLatin1Char('.') + Mailname + QStringLiteral("@example.net")
                : QStringLiteral("einkauf@") + Mailname + QStringLiteral(".example");
  K.Telefon = Telefonnummer(F.Land, Z);
  if (!K.Adresse.Firma.isEmpty()) {
    K.Fax = Telefonnummer(F.Land, Z);
    K.Kundennummer = QStringLiteral("K%1").arg(20000 + K.Id);
  }
  K.Ust_Id = QLatin1String(F.Ust_Id);
  K.Angelegt = Anlagezeit(D.Heute, Z);
  return K;
}

Anschrift Zweitanschrift(const Kunde &K, Zufall &Z) {
  Anschrift A = K.Adresse;
  switch (Z.unter(3)) {
    case 0:
      A.Strasse = QStringLiteral("Packstation %1").arg(100 + Z.unter(80));
      A.Zusatz = QStringLiteral("Postnummer 9990%1").arg(1000 + Z.unter(9000));
      return A;
    case 1:
      A.Firma = QStringLiteral("Steuerbüro Sägmüller & Partner");
      A.Strasse = QStringLiteral("Kanzleistraße %1").arg(Z.zwischen(1, 40));
      return A;
    default: {
      const Ort &O = Z.aus(Orte_deutsch());
      A.Geschlecht = QStringLiteral("f");
      A.Vorname = QStringLiteral("Käthe");
      A.Strasse = QStringLiteral("Ferienhof Möwennest %1").arg(Z.zwischen(1, 9));
      A.Plz = Text(O.Plz);
      A.Ort = Text(O.Name);
      A.Bundesland = O.Bundesland;
      return A;
    }
  }
}

}  // namespace

void Kunden_erzeugen(Demodaten &D, Zufall &Z) {
  // Number 1 is the shop's administrator.
  const auto Private_anlegen = [&](int Anzahl, const std::vector<Ort> &Orte) {
    for (int i = 0; i < Anzahl; ++i) D.Kunden.push_back(Privatkunde(D, Z.aus(Orte), Z));
  };
  Private_anlegen(38, Orte_deutsch());
  Private_anlegen(6, Orte_oesterreich());
  Private_anlegen(6, Orte_schweiz());
  for (const Festzeile &F : Festtafel()) D.Kunden.push_back(Festkunde(D, F, Z));
  const std::size_t Ab = D.Kunden.size();
  Private_anlegen(7, Orte_deutsch());
  for (std::size_t i = Ab; i < D.Kunden.size(); ++i) {
    D.Kunden[i].Gruppe = Gast;
    D.Kunden[i].Kundennummer.clear();
    D.Kunden[i].Newsletter = false;
    D.Kunden[i].Konto_geloescht = i - Ab < 5;
  }
  for (Kunde &K : D.Kunden)
    if (K.Adresse.Land == 81 && K.Gruppe != Gast && Z.trifft(30))
      K.Lieferadressen.push_back(Zweitanschrift(K, Z));
}

}  // namespace marklink::demo
