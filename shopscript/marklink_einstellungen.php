<?php
// Einstellungen des Marklink-Shopscripts. Jede Zeile darf fehlen; dann gilt der hier gezeigte Wert.
return [
    // Die configure.php des Shops, absolut oder ab dem Ordner dieses Scripts.
    'configure' => '../includes/configure.php',

    // Eigene Anmeldungen neben den Administratoren des Shops: 'Name' => md5('Kennwort').
    'anmeldungen' => [],

    // Zeichensatz der Texte in der Datenbank: 'auto', 'utf-8', 'windows-1252' oder 'iso-8859-15'.
    'zeichensatz' => 'auto',

    // E-Mails an Kunden: 'php' (mail() des Servers), 'datei' (als .eml in den Ordner mail_ordner) oder 'keine'.
    'mail' => 'php',
    'mail_ordner' => '',    // ein Ordner, den der Webserver nicht ausliefert
    'mail_absender' => '',  // leer: die Adresse aus der Konfiguration des Shops
];
