<?php
// Entry of the shop script: one GET request in, one XML document out.

declare(strict_types=1);

// Nothing may stand before the XML declaration: warnings stay off the wire, and what the
// shop's own files print while they are read is caught here and thrown away.
if (function_exists('ini_set')) { // some hosts switch it off
    ini_set('display_errors', '0');
    ini_set('zlib.output_compression', '0');
}
ob_start();

foreach (['Zeichensatz', 'Anfrage', 'Antwort', 'Datenbank', 'Shop', 'Anmeldung', 'Anschrift', 'Preise',
          'Bestelldaten', 'Bestellungen', 'Kunden', 'Listen', 'Benachrichtigung', 'Bestellstatus', 'Ablauf'] as $Teil) {
    require_once __DIR__ . '/teile/' . $Teil . '.php';
}

\Marklink\Ablauf::ausfuehren(__DIR__);
