// Whole files, a disk that is full, and what the program tells under MARKLINK_TRACE=1.
#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <QFile>
#include <functional>

namespace marklink::test {

inline QByteArray Datei_lesen(const QString &Pfad) {
  QFile datei(Pfad);
  return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("(keine Datei)");
}

inline void Datei_schreiben(const QString &Pfad, const QByteArray &Inhalt) {
  QFile datei(Pfad);
  ASSERT_TRUE(datei.open(QIODevice::WriteOnly)) << Pfad.toStdString();
  ASSERT_EQ(datei.write(Inhalt), Inhalt.size());
}

/// As long as it lives no file grows beyond so many bytes.
class Volle_Platte {
 public:
  explicit Volle_Platte(qsizetype Groesste_Datei) {
    getrlimit(RLIMIT_FSIZE, &Vorher_);
    const rlimit eng{rlim_t(Groesste_Datei), Vorher_.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &eng), 0);
  }
  ~Volle_Platte() {
    setrlimit(RLIMIT_FSIZE, &Vorher_);
    signal(SIGXFSZ, Handler_);
  }
  Volle_Platte(const Volle_Platte &) = delete;
  Volle_Platte &operator=(const Volle_Platte &) = delete;

 private:
  rlimit Vorher_{};
  sighandler_t Handler_ = signal(SIGXFSZ, SIG_IGN);
};

/// The trace of what is done.
inline std::string Spur(const std::function<void()> &Tun) {
  qputenv("MARKLINK_TRACE", "1");
  testing::internal::CaptureStderr();
  Tun();
  qunsetenv("MARKLINK_TRACE");
  return testing::internal::GetCapturedStderr();
}

}  // namespace marklink::test
