// GET over libcurl: exactly the given header lines, own limits, basic authentication on request only.
#include "Http_Abruf.h"

#include <curl/curl.h>

#include <QElapsedTimer>
#include <algorithm>

namespace marklink {

namespace {

constexpr int Takt_ms = 50;  // how soon a click on cancel is seen

struct Kopfliste {
  curl_slist *Zeilen = nullptr;
  Kopfliste() = default;
  Kopfliste(const Kopfliste &) = delete;
  Kopfliste &operator=(const Kopfliste &) = delete;
  ~Kopfliste() { curl_slist_free_all(Zeilen); }
  void anfuegen(const char *Zeile) {
    if (curl_slist *neu = curl_slist_append(Zeilen, Zeile)) Zeilen = neu;
  }
};

/// What the callbacks of one transfer share.
struct Lauf {
  Http_Ergebnis Ergebnis;
  Verbindungsanzeige *Anzeige = nullptr;
  bool Zu_gross = false;
};

size_t Rumpf_annehmen(char *Daten, size_t /*Eins*/, size_t Anzahl, void *Zeiger) {
  auto &lauf = *static_cast<Lauf *>(Zeiger);
  QByteArray &rumpf = lauf.Ergebnis.Rumpf;
  if (rumpf.size() + static_cast<qint64>(Anzahl) > austauschgrenzen().Hoechstgroesse) {
    lauf.Zu_gross = true;
    return 0;
  }
  rumpf.append(Daten, static_cast<qsizetype>(Anzahl));
  return Anzahl;
}

int Verbindung_melden(void *Zeiger, char * /*Fern*/, char * /*Nah*/, int /*Fernport*/, int /*Nahport*/) {
  const auto &lauf = *static_cast<Lauf *>(Zeiger);
  if (lauf.Anzeige != nullptr) lauf.Anzeige->Verbunden(true);
  return CURL_PREREQFUNC_OK;
}

/// The handles live as long as the library, and the connection to the shop lives in them.
class Leitung {
 public:
  Leitung() {
    curl_global_init(CURL_GLOBAL_DEFAULT);
    Einzeln = curl_easy_init();
    Alle = curl_multi_init();
    if (Bereit()) fest_einstellen();
  }
  Leitung(const Leitung &) = delete;
  Leitung &operator=(const Leitung &) = delete;
  ~Leitung() {
    curl_easy_cleanup(Einzeln);
    curl_multi_cleanup(Alle);
  }
  bool Bereit() const { return Einzeln != nullptr && Alle != nullptr; }
  void einstellen(const Http_Anfrage &Anfrage, const Kopfliste &Kopf, Lauf &L, char *Fehlertext) const;

  CURL *Einzeln = nullptr;
  CURLM *Alle = nullptr;
  bool Belegt = false;

 private:
  void fest_einstellen() const;
};

/// What is the same for all requests.
void Leitung::fest_einstellen() const {
  curl_easy_setopt(Einzeln, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
  curl_easy_setopt(Einzeln, CURLOPT_ACCEPT_ENCODING, "deflate");
  curl_easy_setopt(Einzeln, CURLOPT_PROTOCOLS_STR, "http,https");
  curl_easy_setopt(Einzeln, CURLOPT_FOLLOWLOCATION, 0L);
  // The shop is reached directly, whatever the environment says.
  curl_easy_setopt(Einzeln, CURLOPT_PROXY, "");
  curl_easy_setopt(Einzeln, CURLOPT_WRITEFUNCTION, &Rumpf_annehmen);
  curl_easy_setopt(Einzeln, CURLOPT_PREREQFUNCTION, &Verbindung_melden);
}

/// What is one request's own; everything that an earlier one has left is set anew.
void Leitung::einstellen(const Http_Anfrage &Anfrage, const Kopfliste &Kopf, Lauf &L,
                         char *Fehlertext) const {
  curl_easy_setopt(Einzeln, CURLOPT_URL, Anfrage.Basis.constData());
  curl_easy_setopt(Einzeln, CURLOPT_REQUEST_TARGET, Anfrage.Ziel.constData());
  curl_easy_setopt(Einzeln, CURLOPT_HTTPHEADER, Kopf.Zeilen);
  curl_easy_setopt(Einzeln, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(austauschgrenzen().Verbinden_ms));
  curl_easy_setopt(Einzeln, CURLOPT_WRITEDATA, &L);
  curl_easy_setopt(Einzeln, CURLOPT_PREREQDATA, &L);
  curl_easy_setopt(Einzeln, CURLOPT_ERRORBUFFER, Fehlertext);
}

Leitung &leitung() {
  static Leitung eine;
  return eine;
}

void Kopf_zusammenstellen(Kopfliste &Liste, const Http_Anfrage &Anfrage, bool Angemeldet) {
  // An empty Host line up front is what lets the real one keep its place.
  if (!Anfrage.Kopf.isEmpty()) Liste.anfuegen("Host:");
  for (qsizetype ort = 0; ort < Anfrage.Kopf.size(); ort = Anfrage.Kopf.indexOf('\0', ort) + 1)
    Liste.anfuegen(Anfrage.Kopf.constData() + ort);
  if (Angemeldet) {
    const QByteArray anmeldung = (Anfrage.Benutzer + ':' + Anfrage.Passwort).toBase64();
    Liste.anfuegen(("Authorization: Basic " + anmeldung).constData());
  }
}

struct Zaehlerstand {
  qint64 Gesendet = 0, Empfangen = 0;
  bool operator==(const Zaehlerstand &) const = default;
};

Zaehlerstand Zaehler_lesen(CURL *Curl) {
  long gesendet = 0;
  long kopf = 0;
  curl_off_t rumpf = 0;
  curl_easy_getinfo(Curl, CURLINFO_REQUEST_SIZE, &gesendet);
  curl_easy_getinfo(Curl, CURLINFO_HEADER_SIZE, &kopf);
  curl_easy_getinfo(Curl, CURLINFO_SIZE_DOWNLOAD_T, &rumpf);
  return {gesendet, kopf + static_cast<qint64>(rumpf)};
}

/// Looks after a running transfer between two of its steps: counters, cancel, silence, size.
class Aufsicht {
 public:
  Aufsicht(CURL *Curl, Verbindungsanzeige *Anzeige) : Curl_(Curl), Anzeige_(Anzeige) { Ruhe_.start(); }

  /// Why the transfer has to be given up; empty when it may go on.
  QString pruefen() {
    const Zaehlerstand neu = Zaehler_lesen(Curl_);
    if (neu != Stand_) {
      Stand_ = neu;
      Ruhe_.restart();
      if (Anzeige_ != nullptr) Anzeige_->Uebertragen(neu.Gesendet, neu.Empfangen);
    }
    if (Anzeige_ != nullptr && Anzeige_->Abbrechen()) return QStringLiteral("given up by the user");
    if (Stand_.Empfangen > austauschgrenzen().Hoechstgroesse) return QStringLiteral("reply too large");
    if (Ruhe_.hasExpired(austauschgrenzen().Stille_ms)) return QStringLiteral("server is silent");
    return {};
  }

 private:
  CURL *Curl_;
  Verbindungsanzeige *Anzeige_;
  Zaehlerstand Stand_;
  QElapsedTimer Ruhe_;
};

/// Drives the transfer to its end. The empty text when a complete reply came.
QString Uebertragung_fahren(Leitung &L, Lauf &Dieser, const char *Fehlertext) {
  Aufsicht aufsicht(L.Einzeln, Dieser.Anzeige);
  QString abbruch;
  int laufend = 1;
  for (;;) {
    if (curl_multi_perform(L.Alle, &laufend) != CURLM_OK) return QStringLiteral("libcurl failed");
    abbruch = aufsicht.pruefen();
    if (laufend == 0 || !abbruch.isEmpty()) break;
    curl_multi_poll(L.Alle, nullptr, 0, std::min(Takt_ms, austauschgrenzen().Stille_ms), nullptr);
  }
  if (laufend != 0) return abbruch;
  int offen = 0;
  const CURLMsg *meldung = curl_multi_info_read(L.Alle, &offen);
  if (meldung == nullptr) return QStringLiteral("libcurl failed");
  if (meldung->data.result == CURLE_OK) return {};
  if (Dieser.Zu_gross) return QStringLiteral("reply too large");
  return QString::fromUtf8(*Fehlertext != '\0' ? Fehlertext : curl_easy_strerror(meldung->data.result));
}

Http_Ergebnis Einmal_abrufen(Leitung &L, const Http_Anfrage &Anfrage, Verbindungsanzeige *Anzeige,
                             bool Angemeldet) {
  Lauf lauf;
  lauf.Anzeige = Anzeige;
  Kopfliste kopf;
  Kopf_zusammenstellen(kopf, Anfrage, Angemeldet);
  char fehlertext[CURL_ERROR_SIZE] = "";
  L.einstellen(Anfrage, kopf, lauf, fehlertext);

  curl_multi_add_handle(L.Alle, L.Einzeln);
  lauf.Ergebnis.Fehler = Uebertragung_fahren(L, lauf, fehlertext);
  curl_multi_remove_handle(L.Alle, L.Einzeln);  // closes the connection when the transfer was given up
  if (lauf.Ergebnis.Fehler.isEmpty())
    curl_easy_getinfo(L.Einzeln, CURLINFO_RESPONSE_CODE, &lauf.Ergebnis.Status);
  else if (Anzeige != nullptr)
    Anzeige->Verbunden(false);
  curl_easy_setopt(L.Einzeln, CURLOPT_ERRORBUFFER, nullptr);
  return std::move(lauf.Ergebnis);
}

bool Basis_verlangt(CURL *Curl) {
  long angebot = 0;
  curl_easy_getinfo(Curl, CURLINFO_HTTPAUTH_AVAIL, &angebot);
  return (static_cast<unsigned long>(angebot) & CURLAUTH_BASIC) != 0;
}

}  // namespace

Austauschgrenzen &austauschgrenzen() {
  static Austauschgrenzen grenzen;
  return grenzen;
}

Http_Ergebnis Http_abrufen(const Http_Anfrage &Anfrage, Verbindungsanzeige *Anzeige) {
  Leitung &l = leitung();
  Http_Ergebnis ergebnis;
  if (!l.Bereit() || l.Belegt) {  // a window that lets events through could call us again
    ergebnis.Fehler = l.Belegt ? QStringLiteral("ein Abruf läuft schon") : QStringLiteral("libcurl failed");
    return ergebnis;
  }
  l.Belegt = true;
  ergebnis = Einmal_abrufen(l, Anfrage, Anzeige, false);
  if (ergebnis.Status == 401 && !Anfrage.Benutzer.isEmpty() && Basis_verlangt(l.Einzeln))
    ergebnis = Einmal_abrufen(l, Anfrage, Anzeige, true);
  l.Belegt = false;
  return ergebnis;
}

}  // namespace marklink
