// A tiny host: prints what the library says of itself and whether the client opens.
// Usage: host CLIENT EMPLOYEE [LIBRARY]
#include <marklink/common.h>

#include <cstdio>
#ifdef ZUR_LAUFZEIT
#include <dlfcn.h>
#endif

int main(int argc, char **argv) {
  if (argc < 3) return 2;
#ifdef ZUR_LAUFZEIT
  void *bibliothek = argc > 3 ? dlopen(argv[3], RTLD_NOW) : nullptr;
  if (!bibliothek) return 3;
  const auto erzeugen =
      reinterpret_cast<decltype(&marklink_common_erzeugen)>(dlsym(bibliothek, "marklink_common_erzeugen"));
  const auto freigeben =
      reinterpret_cast<decltype(&marklink_common_freigeben)>(dlsym(bibliothek, "marklink_common_freigeben"));
  if (!erzeugen || !freigeben) return 4;
#else
  const auto erzeugen = &marklink_common_erzeugen;
  const auto freigeben = &marklink_common_freigeben;
#endif
  marklink::common *marklink = erzeugen();
  std::printf("%s\n", marklink->Message_Info().toUtf8().constData());
  const bool offen =
      marklink->Initialisierung(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
  std::printf("%s\n", offen ? "offen" : "zu");
  freigeben(marklink);
  return 0;
}
