// What an exchange costs above the bare wire: small requests through Daten_abrufen() against a plain libcurl
// loop on one kept connection to the same local server, one after the other in turn.
#include <curl/curl.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <numeric>
#include <string>
#include <vector>

#include "host/Ini.h"
#include "host/Kontext.h"
#include "shop/Aktionen.h"
#include "support/Shop_Attrappe.h"

using namespace marklink;

namespace {

constexpr int Anfragen = 1000;

size_t Sammeln(char *Daten, size_t Eins, size_t Anzahl, void *Ziel) {
  static_cast<std::string *>(Ziel)->append(Daten, Eins * Anzahl);
  return Eins * Anzahl;
}

bool Bloss_abrufen(CURL *Curl) {
  std::string rumpf;
  curl_easy_setopt(Curl, CURLOPT_WRITEDATA, &rumpf);
  return curl_easy_perform(Curl) == CURLE_OK && !rumpf.empty();
}

bool Ueber_Austausch() { return !Daten_abrufen(Abrufen::Bestellungen, {}).isEmpty(); }

/// Microseconds for one request; negative when it failed.
template <typename Abruf>
double Messen(const Abruf &Einmal) {
  QElapsedTimer zeit;
  zeit.start();
  return Einmal() ? static_cast<double>(zeit.nsecsElapsed()) / 1000 : -1e12;
}

double Median(std::vector<double> Zeiten) {
  const auto mitte = Zeiten.begin() + std::ssize(Zeiten) / 2;
  std::nth_element(Zeiten.begin(), mitte, Zeiten.end());
  return *mitte;
}

void Zeigen(const char *Name, const std::vector<double> &Zeiten) {
  std::printf("%-14s %d requests %8.1f ms, median %6.1f us\n", Name, Anfragen,
              std::accumulate(Zeiten.begin(), Zeiten.end(), 0.0) / 1000, Median(Zeiten));
}

}  // namespace

int main() {
  const QTemporaryDir ordner;
  qputenv("TMPDIR", ordner.path().toLocal8Bit());
  Kontext.gHostkonfiguration = ordner.filePath(QStringLiteral("varda.ini"));
  Ini_schreiben(Kontext.gHostkonfiguration, QStringLiteral("Marklink"), QStringLiteral("exportfile"),
                QStringLiteral("antwort.xml"));
  test::Shop_Attrappe shop;
  shop.Einsetzen();
  shop.Antworten("get_orders",
                 "<?xml version=\"1.0\" encoding=\"windows-1252\"?><STATUS><STATUS_DATA><MESSAGE>OK</MESSAGE>"
                 "</STATUS_DATA></STATUS>");
  CURL *curl = curl_easy_init();
  const std::string url =
      "http://127.0.0.1:" + std::to_string(shop.Port()) +
      "/shop/marklink.php?action=get_orders&user=u&password=" + Kontext.gPassword.toStdString();
  curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
  curl_slist *kopf = nullptr;  // as many header bytes as the real request has
  for (const char *zeile :
       {"Accept: image/gif, image/x-xbitmap, image/jpeg, image/pjpeg, application/x-shockwave-flash, "
        "application/vnd.ms-excel, application/msword, application/vnd.ms-powerpoint, */*",
        "Accept-Encoding: deflate", "User-Agent: Tennwerk Varda", "Connection: Keep-Alive"})
    kopf = curl_slist_append(kopf, zeile);
  curl_easy_setopt(curl, CURLOPT_HTTPHEADER, kopf);
  curl_easy_setopt(curl, CURLOPT_PROXY, "");
  curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &Sammeln);

  Bloss_abrufen(curl);
  Ueber_Austausch();
  std::vector<double> bloss;
  std::vector<double> austausch;
  for (int i = 0; i < Anfragen; ++i) {
    bloss.push_back(Messen([&] { return Bloss_abrufen(curl); }));
    austausch.push_back(Messen(&Ueber_Austausch));
  }
  curl_easy_cleanup(curl);
  curl_slist_free_all(kopf);
  if (std::min(*std::min_element(bloss.begin(), bloss.end()),
               *std::min_element(austausch.begin(), austausch.end())) < 0) {
    std::fprintf(stderr, "a request failed\n");
    return 1;
  }
  Zeigen("bare libcurl", bloss);
  Zeigen("Daten_abrufen", austausch);
  std::printf("ratio of the medians %6.2f\n", Median(austausch) / Median(bloss));
  return 0;
}
