<?php
// The shop as the actions see it: settings, character set, languages, countries, and reading one field of a row.

declare(strict_types=1);

namespace Marklink;

use RuntimeException;

final class Shop
{
    /** @var Datenbank */
    public $datenbank;

    /** @var Zeichensatz */
    public $zeichensatz;

    /** @var array<string,mixed> the companion file */
    private $einstellungen;

    /** @var array<string,string>|null lower-case name => ISO-2 code */
    private $laender = null;

    /** @param array<string,mixed> $einstellungen */
    private function __construct(Datenbank $datenbank, array $einstellungen)
    {
        $this->datenbank = $datenbank;
        $this->einstellungen = $einstellungen;
        $this->zeichensatz = new Zeichensatz($this->zeichensatz_ermitteln());
    }

    /** Reads the companion file and the shop's configure.php; throws when there is no way to the database. */
    public static function oeffnen(string $ordner): self
    {
        $begleitdatei = self::begleitdatei($ordner);
        $einstellungen = $begleitdatei !== '' ? include $begleitdatei : [];
        $einstellungen = is_array($einstellungen) ? $einstellungen : [];

        $pfad = (string) ($einstellungen['configure'] ?? '../includes/configure.php');
        if (!preg_match('/^(\/|\\\\|[A-Za-z]:)/', $pfad)) {
            $pfad = $ordner . '/' . $pfad;
        }
        // A local copy beside it wins, as it does in the shop itself.
        $lokal = dirname($pfad) . '/local/configure.php';
        $pfad = is_file($lokal) ? $lokal : $pfad;
        if (!is_file($pfad)) {
            throw new RuntimeException('Die configure.php des Shops fehlt: ' . $pfad);
        }
        require_once $pfad;
        return new self(Datenbank::oeffnen(), $einstellungen);
    }

    /**
     * The companion file under the name that a shop owner gives it, else the latest one that came by FTP: its name
     * holds 16 hexadecimal digits, since each program folder has its own. The empty text when there is none.
     */
    private static function begleitdatei(string $ordner): string
    {
        $eigene = $ordner . '/marklink_einstellungen.php';
        if (is_file($eigene)) {
            return $eigene;
        }
        $gefunden = [];
        foreach (@scandir($ordner) ?: [] as $name) {
            if (preg_match('/^marklink_[0-9a-f]{16}\.php$/D', $name)) {
                $gefunden["$ordner/$name"] = (int) @filemtime("$ordner/$name");
            }
        }
        arsort($gefunden);
        return (string) (array_key_first($gefunden) ?? '');
    }

    /** A setting of the companion file. */
    public function einstellung(string $name): string
    {
        $wert = $this->einstellungen[$name] ?? '';
        return is_scalar($wert) ? (string) $wert : '';
    }

    /** @return array<string,string> user => MD5 of the password */
    public function anmeldungen(): array
    {
        return array_filter((array) ($this->einstellungen['anmeldungen'] ?? []), 'is_string');
    }

    /** A value of the shop's configuration table, '' when it has none. */
    public function konfiguration(string $schluessel): string
    {
        if (!$this->datenbank->hat('configuration', 'configuration_key')) {
            return '';
        }
        $zeile = $this->datenbank->zeile(
            'SELECT configuration_value FROM configuration WHERE configuration_key = ?',
            [$schluessel]
        );
        return $zeile === null ? '' : $this->text($zeile, 'configuration_value');
    }

    /** Text of a field as clean UTF-8; '' when the shop's schema lacks the column. */
    public function text(array $zeile, string $feld): string
    {
        return isset($zeile[$feld]) ? trim($this->zeichensatz->lesen((string) $zeile[$feld])) : '';
    }

    public function zahl(array $zeile, string $feld): float
    {
        return isset($zeile[$feld]) ? (float) $zeile[$feld] : 0.0;
    }

    /** A number for the wire: point, no thousands, no minus before zero. */
    public static function zahl_schreiben(float $zahl, int $stellen): string
    {
        $text = number_format($zahl, $stellen, '.', '');
        return (float) $text == 0.0 ? ltrim($text, '-') : $text;
    }

    /** 'YYYY-MM-DD hh:mm:ss'; '' for the shop's zero date, which stands for none. */
    public function zeitpunkt(array $zeile, string $feld): string
    {
        $roh = $this->text($zeile, $feld);
        if (!preg_match('/^(\d{4}-\d\d-\d\d)(?:[ T](\d\d:\d\d)(:\d\d)?)?/', $roh, $teile)) {
            return '';
        }
        if (strncmp($teile[1], '0000', 4) === 0) {
            return '';
        }
        return $teile[1] . ' ' . ($teile[2] ?? '00:00') . ($teile[3] ?? ':00');
    }

    /** The shop's default language, else its first. */
    public function sprache(): int
    {
        return $this->sprache_zu('code', $this->konfiguration('DEFAULT_LANGUAGE'));
    }

    /** By the directory name that orders carry ('german'); the default language for an unknown one. */
    public function sprache_der_bestellung(string $verzeichnis): int
    {
        return $verzeichnis === '' ? $this->sprache() : $this->sprache_zu('directory', $verzeichnis);
    }

    private function sprache_zu(string $spalte, string $wert): int
    {
        if (!$this->datenbank->hat('languages', 'languages_id')) {
            return 0;
        }
        $zeile = $this->datenbank->zeile("SELECT languages_id FROM languages WHERE $spalte = ?", [$wert]);
        if ($zeile === null && $spalte !== 'code') {
            return $this->sprache();
        }
        $zeile = $zeile ?? $this->datenbank->zeile('SELECT MIN(languages_id) AS languages_id FROM languages');
        return (int) ($zeile['languages_id'] ?? 0);
    }

    /** ISO-2 code of a country that is kept by name; a name that the shop does not know stays as it is. */
    public function land(string $name): string
    {
        if ($this->laender === null) {
            $this->laender = [];
            if ($this->datenbank->hat('countries', 'countries_iso_code_2')) {
                foreach ($this->datenbank->zeilen('SELECT countries_name, countries_iso_code_2 FROM countries') as $zeile) {
                    $schluessel = strtolower($this->text($zeile, 'countries_name'));
                    $this->laender[$schluessel] = $this->text($zeile, 'countries_iso_code_2');
                }
            }
        }
        return $this->laender[strtolower($name)] ?? $name;
    }

    private function zeichensatz_ermitteln(): string
    {
        $art = strtolower($this->einstellung('zeichensatz'));
        if (in_array($art, ['utf-8', 'windows-1252', 'iso-8859-15'], true)) {
            return $art;
        }
        $seiten = '';
        if ($this->datenbank->hat('languages', 'language_charset')) {
            $zeilen = $this->datenbank->zeilen('SELECT language_charset FROM languages ORDER BY languages_id DESC LIMIT 1');
            $seiten = strtolower((string) ($zeilen[0]['language_charset'] ?? ''));
        }
        // A shop with pages in UTF-8 keeps UTF-8 bytes even behind a latin1 connection.
        if (strncmp($this->datenbank->zeichensatz(), 'utf8', 4) === 0 || strncmp($seiten, 'utf', 3) === 0) {
            return 'utf-8';
        }
        return $seiten === 'iso-8859-15' ? 'iso-8859-15' : 'windows-1252';
    }
}
