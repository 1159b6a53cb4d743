// Reading a reply file of the shop.
#pragma once

#include <QString>
#include <pugixml.hpp>

namespace marklink {

/// Loads a reply by the encoding that its declaration names (Windows-1252 and UTF-8 among them; none named:
/// UTF-8 when the bytes are, else Windows-1252). A file that is missing, too large (256 MiB) or no XML leaves
/// an empty document and gives false. No external entity is ever followed. A body that was cut keeps nothing.
bool Antwort_laden(const QString &Datei, pugi::xml_document &Dokument);

/// Text of the first node at a path of child names ("ORDER_HEADER/ORDER_ID"); empty when missing.
QString Knoten_Text(const pugi::xml_node &Knoten, const char *Pfad);

/// The first STATUS/STATUS_DATA of a status reply and in it the child of that name; empty when missing.
QString Statusantwort_lesen(const QString &Datei, const char *Kind);

}  // namespace marklink
