// Files to an FTP server, over libcurl.
#include "Ftp.h"

#include <curl/curl.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "Unterbrechung.h"
#include "db/Ablaufverfolgung.h"
#include "host/Zeichensatz.h"
#include "shop/Serveradresse.h"

namespace marklink {
namespace {

constexpr auto Verlangt = QLatin1String("ftps://");

bool Steuerzeichen_enthalten(const QString &Text) {
  return std::any_of(Text.begin(), Text.end(),
                     [](QChar z) { return z.unicode() < 0x20 || z.unicode() == 0x7F; });
}

/// "ftp://ftp.shop.de:2121"; empty when the address is impossible.
QByteArray Basis(const QString &Server) {
  QString name = Server.trimmed();
  for (const QLatin1String schema : {QLatin1String("ftp://"), Verlangt})
    if (name.startsWith(schema, Qt::CaseInsensitive)) name.remove(0, schema.size());
  const Serveradresse adresse = Serveradresse_lesen(name);
  if (adresse.Rechner.isEmpty()) return {};
  return "ftp://" + adresse.Rechner.toLatin1() +
         (adresse.Port.isEmpty() ? QByteArray() : ':' + adresse.Port.toLatin1()) + '/';
}

/// The path within an address: "%2F" in front is the server's root, a closing "/" a folder.
QByteArray Pfad(const QString &Ordner, const QString &Dateiname) {
  QByteArray pfad = Ordner.startsWith(u'/') ? "%2F" : "";
  for (const QString &teil : Ordner.split(u'/', Qt::SkipEmptyParts))
    pfad += Nach_1252(teil).toPercentEncoding() + '/';
  return pfad + Nach_1252(Dateiname).toPercentEncoding("/");
}

/// Called by libcurl again and again, also while nothing comes: windows stay painted, Ctrl-C gives up.
int Weiter(void *, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  return Unterbrochen() ? 1 : 0;
}

size_t Verwerfen(char *, size_t Groesse, size_t Anzahl, void *) { return Groesse * Anzahl; }

size_t Lesen(char *Ziel, size_t Groesse, size_t Anzahl, void *Datei) {
  const qint64 gelesen =
      static_cast<QFile *>(Datei)->read(Ziel, static_cast<qint64>(Groesse) * static_cast<qint64>(Anzahl));
  return gelesen < 0 ? CURL_READFUNC_ABORT : static_cast<size_t>(gelesen);
}

/// One request of its own connection.
class Ftpabruf {
 public:
  Ftpabruf(const Ftpanmeldung &A, const QByteArray &Pfad)
      : Curl_(curl_easy_init()), Basis_(Basis(A.Server)), Url_(Basis_ + Pfad) {
    if (Curl_ == nullptr) return;
    Anmelden(A);
    Verbindung_einstellen(A.Server.trimmed().startsWith(Verlangt, Qt::CaseInsensitive));
    if (Steuerzeichen_enthalten(A.Benutzer + A.Passwort)) Basis_.clear();
  }
  Ftpabruf(const Ftpabruf &) = delete;
  Ftpabruf &operator=(const Ftpabruf &) = delete;
  ~Ftpabruf() { curl_easy_cleanup(Curl_); }

  template <typename T>
  void Einstellen(CURLoption Option, T Wert) {
    if (Curl_ != nullptr) curl_easy_setopt(Curl_, Option, Wert);
  }

  bool Ausfuehren() {
    if (Curl_ == nullptr || Basis_.isEmpty()) return Melden("unusable server name or login");
    char fehler[CURL_ERROR_SIZE] = "";
    curl_easy_setopt(Curl_, CURLOPT_ERRORBUFFER, fehler);
    const CURLcode ausgang = curl_easy_perform(Curl_);
    curl_easy_setopt(Curl_, CURLOPT_ERRORBUFFER, nullptr);
    if (ausgang == CURLE_OK) return true;
    return Melden(*fehler != '\0' ? fehler : curl_easy_strerror(ausgang));
  }

  bool Melden(const char *Grund) const {
    Ablauf_melden(QStringLiteral("FTP"),
                  QString::fromUtf8(Url_) + QStringLiteral(": ") + QString::fromUtf8(Grund));
    return false;
  }

  /// A value that the server told; negative when it did not.
  curl_off_t Auskunft(CURLINFO Was) const {
    curl_off_t wert = -1;
    curl_easy_getinfo(Curl_, Was, &wert);
    return wert;
  }

 private:
  void Anmelden(const Ftpanmeldung &A) {
    Einstellen(CURLOPT_URL, Url_.constData());
    Einstellen(CURLOPT_PATH_AS_IS, 1L);  // ".." means the server's parent folder, not a shorter path
    Einstellen(CURLOPT_USERNAME, Nach_1252(A.Benutzer).constData());
    Einstellen(CURLOPT_PASSWORD, Nach_1252(A.Passwort).constData());
  }
  void Verbindung_einstellen(bool Tls_verlangt) {
    Einstellen(CURLOPT_PROTOCOLS_STR, "ftp");
    Einstellen(CURLOPT_PROXY, "");
    Einstellen(CURLOPT_NOSIGNAL, 1L);
    Einstellen(CURLOPT_USE_SSL, static_cast<long>(Tls_verlangt ? CURLUSESSL_ALL : CURLUSESSL_TRY));
    Einstellen(CURLOPT_SSL_VERIFYPEER, Tls_verlangt ? 1L : 0L);
    Einstellen(CURLOPT_SSL_VERIFYHOST, Tls_verlangt ? 2L : 0L);
    Einstellen(CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(ftpgrenzen().Verbinden_ms));
    Einstellen(CURLOPT_SERVER_RESPONSE_TIMEOUT, static_cast<long>(ftpgrenzen().Stille_s));
    Einstellen(CURLOPT_LOW_SPEED_LIMIT, 1L);
    Einstellen(CURLOPT_LOW_SPEED_TIME, static_cast<long>(ftpgrenzen().Stille_s));
    Einstellen(CURLOPT_WRITEFUNCTION, &Verwerfen);
    Einstellen(CURLOPT_NOPROGRESS, 0L);
    Einstellen(CURLOPT_XFERINFOFUNCTION, &Weiter);
  }

  CURL *Curl_;
  QByteArray Basis_;
  QByteArray Url_;
};

}  // namespace

Ftpgrenzen &ftpgrenzen() {
  static Ftpgrenzen grenzen;
  return grenzen;
}

bool Ftp_anmelden(const Ftpanmeldung &A) {
  Ftpabruf abruf(A, {});
  abruf.Einstellen(CURLOPT_NOBODY, 1L);  // goes no further than the login
  return abruf.Ausfuehren();
}

bool Ftp_hochladen(const Ftpanmeldung &A, const QString &Ordner, const QString &Datei) {
  Ftpabruf abruf(A, Pfad(Ordner, QFileInfo(Datei).fileName()));
  QFile quelle(Datei);
  if (!QFileInfo(Datei).isFile() || !quelle.open(QIODevice::ReadOnly))
    return abruf.Melden("the local file cannot be read");
  abruf.Einstellen(CURLOPT_UPLOAD, 1L);
  abruf.Einstellen(CURLOPT_READFUNCTION, &Lesen);
  abruf.Einstellen(CURLOPT_READDATA, static_cast<void *>(&quelle));
  abruf.Einstellen(CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(quelle.size()));
  abruf.Einstellen(CURLOPT_FTP_CREATE_MISSING_DIRS, static_cast<long>(CURLFTP_CREATE_DIR_RETRY));
  return abruf.Ausfuehren();
}

bool Ftp_vorhanden(const Ftpanmeldung &A, const QString &Ordner, const QString &Dateiname) {
  Ftpabruf abruf(A, Pfad(Ordner, Dateiname));
  if (Dateiname.isEmpty()) return abruf.Melden("no file name");
  abruf.Einstellen(CURLOPT_NOBODY, 1L);
  abruf.Einstellen(CURLOPT_FILETIME, 1L);
  if (!abruf.Ausfuehren()) return false;
  // A server that knows neither size nor time of the file has not said that there is one.
  return abruf.Auskunft(CURLINFO_CONTENT_LENGTH_DOWNLOAD_T) >= 0 ||
         abruf.Auskunft(CURLINFO_FILETIME_T) >= 0 || abruf.Melden("the server knows nothing of the file");
}

}  // namespace marklink
