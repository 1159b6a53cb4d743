// Reading a reply file: its character set, the document, and text out of it.
#include "Antwort.h"

#include <QFile>
#include <QStringDecoder>
#include <algorithm>
#include <optional>
#include <string_view>

#include "db/Ablaufverfolgung.h"
#include "host/Dateien.h"
#include "host/Zeichensatz.h"

namespace marklink {

namespace {

constexpr qint64 Hoechstgroesse = 256LL << 20;
// The tree of a document takes many times its text when it is all mark-up. An order has some two hundred
// tags.
constexpr qsizetype Hoechstzahl_Tags = 24'000'000;

bool Nur_ASCII(const QByteArray &Bytes) {
  return std::all_of(Bytes.begin(), Bytes.end(), [](char z) { return static_cast<unsigned char>(z) < 0x80; });
}

bool Ist_UTF8(const QByteArray &Bytes) {
  return QUtf8StringView(Bytes.constData(), Bytes.size()).isValidUtf8();
}

/// The value of encoding= in the declaration, in lower case; empty when none is named.
QByteArray Deklarierte_Kodierung(const QByteArray &Bytes) {
  if (!Bytes.startsWith("<?xml")) return {};
  const QByteArray deklaration = Bytes.left(std::min<qsizetype>(Bytes.indexOf("?>"), 512));
  qsizetype ort = deklaration.indexOf("encoding");
  if (ort < 0) return {};
  ort += qsizetype(sizeof("encoding")) - 1;
  const auto leeres_ueberspringen = [&] {
    while (ort < deklaration.size() && QChar::isSpace(static_cast<uchar>(deklaration.at(ort)))) ++ort;
  };
  leeres_ueberspringen();
  if (ort >= deklaration.size() || deklaration.at(ort) != '=') return {};
  ++ort;
  leeres_ueberspringen();
  if (ort >= deklaration.size()) return {};
  const qsizetype ende = deklaration.indexOf(deklaration.at(ort), ort + 1);
  return ende < 0 ? QByteArray() : deklaration.mid(ort + 1, ende - ort - 1).trimmed().toLower();
}

/// UTF-16 shows by its mark or by the zero beside the first "<"; its declaration cannot be read before.
const char *Breite_Kodierung(const QByteArray &Bytes) {
  if (Bytes.startsWith("\xFF\xFE") || Bytes.startsWith(QByteArrayView("<\0", 2))) return "UTF-16LE";
  if (Bytes.startsWith("\xFE\xFF") || Bytes.startsWith(QByteArrayView("\0<", 2))) return "UTF-16BE";
  return nullptr;
}

std::optional<QByteArray> Mit_Decoder(const QByteArray &Bytes, const char *Kodierung) {
  QStringDecoder decoder(Kodierung);
  if (!decoder.isValid()) return std::nullopt;
  const QString text = decoder.decode(Bytes);
  if (decoder.hasError()) return std::nullopt;
  return text.toUtf8();
}

/// The reply as UTF-8; nothing when it does not hold to the character set that it names, or names none we
/// know.
std::optional<QByteArray> Nach_UTF8(QByteArray Bytes) {
  if (const char *breit = Breite_Kodierung(Bytes)) return Mit_Decoder(Bytes, breit);
  if (Bytes.startsWith("\xEF\xBB\xBF")) Bytes.remove(0, 3);
  if (Nur_ASCII(Bytes)) return Bytes;
  const QByteArray name = Deklarierte_Kodierung(Bytes);
  if (name.isEmpty()) return Ist_UTF8(Bytes) ? Bytes : Utf8_aus_1252(Bytes);
  if (name == "utf-8" || name == "utf8") return Ist_UTF8(Bytes) ? std::optional(Bytes) : std::nullopt;
  // Shops that say Latin-1 mean the system's set, which fills its unused places: the euro sign among them.
  if (name == "windows-1252" || name == "cp1252" || name == "iso-8859-1" || name == "latin1" ||
      name == "us-ascii")
    return Utf8_aus_1252(Bytes);
  return Mit_Decoder(Bytes, name.constData());
}

std::optional<QByteArray> Datei_lesen(const QString &Pfad) {
  QFile datei(Pfad);
  if (Pfad.isEmpty() || !datei.open(QIODevice::ReadOnly)) return std::nullopt;
  const qint64 groesse = datei.size();
  if (groesse > Hoechstgroesse) return std::nullopt;
  QByteArray bytes = datei.read(groesse);  // no more than was measured, should it grow meanwhile
  if (bytes.size() != groesse) return std::nullopt;
  return bytes;
}

/// Why nothing was loaded; nullptr on success.
const char *Laden(const QString &Datei, pugi::xml_document &Dokument) {
  Dokument.reset();
  const std::optional<QByteArray> bytes = Datei_lesen(Datei);
  if (!bytes) return "not readable or too large";
  const std::optional<QByteArray> utf8 = Nach_UTF8(*bytes);
  if (!utf8) return "character set unknown or violated";
  if (std::count(utf8->cbegin(), utf8->cend(), '<') > Hoechstzahl_Tags) return "too many elements";
  // pugixml follows no entity beyond the five of XML, and it parses without recursion.
  const pugi::xml_parse_result ergebnis = Dokument.load_buffer(
      utf8->constData(), static_cast<size_t>(utf8->size()), pugi::parse_default, pugi::encoding_utf8);
  if (ergebnis) return nullptr;
  Dokument.reset();
  return ergebnis.description();
}

/// First node at the path in document order, also when an earlier parent lacks the child.
pugi::xml_node Knoten_suchen(const pugi::xml_node &Knoten, std::string_view Pfad) {
  const size_t trenner = Pfad.find('/');
  const std::string_view name = Pfad.substr(0, trenner);
  for (const pugi::xml_node kind : Knoten.children()) {
    if (name != kind.name()) continue;
    if (trenner == std::string_view::npos) return kind;
    if (const pugi::xml_node treffer = Knoten_suchen(kind, Pfad.substr(trenner + 1))) return treffer;
  }
  return {};
}

bool Ist_Text(const pugi::xml_node &Knoten) {
  return Knoten.type() == pugi::node_pcdata || Knoten.type() == pugi::node_cdata;
}

/// The node behind `Knoten` in document order, within `Wurzel`.
pugi::xml_node Naechster(pugi::xml_node Knoten, const pugi::xml_node &Wurzel) {
  if (const pugi::xml_node kind = Knoten.first_child()) return kind;
  while (Knoten != Wurzel) {
    if (const pugi::xml_node bruder = Knoten.next_sibling()) return bruder;
    Knoten = Knoten.parent();
  }
  return {};
}

}  // namespace

bool Antwort_laden(const QString &Datei, pugi::xml_document &Dokument) {
  const char *grund = Laden(Datei, Dokument);
  if (grund == nullptr) return true;
  if (Ablaufverfolgung_an())
    Ablauf_melden(QStringLiteral("Antwort"),
                  Dateiname_aus_Pfad(Datei) + QStringLiteral(": ") + QString::fromUtf8(grund));
  return false;
}

QString Knoten_Text(const pugi::xml_node &Knoten, const char *Pfad) {
  const pugi::xml_node ziel = *Pfad == '\0' ? Knoten : Knoten_suchen(Knoten, Pfad);
  const pugi::xml_node erstes = ziel.first_child();
  if (!erstes) return {};
  if (Ist_Text(erstes) && !erstes.next_sibling()) return QString::fromUtf8(erstes.value());  // nearly always
  // Text in pieces: CDATA sections, comments in between, mark-up.
  QByteArray text;
  for (pugi::xml_node n = erstes; n; n = Naechster(n, ziel))
    if (Ist_Text(n)) text += n.value();
  return QString::fromUtf8(text);
}

QString Statusantwort_lesen(const QString &Datei, const char *Kind) {
  pugi::xml_document dokument;
  if (!Antwort_laden(Datei, dokument)) return {};
  return Knoten_Text(dokument.child("STATUS").child("STATUS_DATA"), Kind);
}

}  // namespace marklink
