<?php
// Text between the shop's database, UTF-8 (used inside the script) and Windows-1252 (used on the wire).
// By hand, since neither mbstring nor iconv can be relied on at a web host.

declare(strict_types=1);

namespace Marklink;

final class Zeichensatz
{
    /** Code points of the bytes 0x80 to 0x9F in Windows-1252; 0 is unassigned. */
    private const WINDOWS_1252 = [
        0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0,
        0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178,
    ];

    /** Where ISO-8859-15 differs from Windows-1252 above 0x9F. */
    private const ISO_8859_15 = [
        0xA4 => 0x20AC, 0xA6 => 0x0160, 0xA8 => 0x0161, 0xB4 => 0x017D,
        0xB8 => 0x017E, 0xBC => 0x0152, 0xBD => 0x0153, 0xBE => 0x0178,
    ];

    /** @var string 'utf-8', 'windows-1252' or 'iso-8859-15': what the database wants when text is written */
    private $art;

    /** @var array<string,array<string,string>> byte => UTF-8, by character set */
    private static $tabellen = [];

    /** @var array<string,string> UTF-8 character => what goes out for it */
    private static $ausgabe = [];

    public function __construct(string $art)
    {
        $this->art = $art;
    }

    /**
     * Text of the database as clean UTF-8. Shops mix encodings in one table, so every value is looked at:
     * valid UTF-8 is taken as such, anything else as the shop's single-byte set.
     */
    public function lesen(?string $roh): string
    {
        if ($roh === null || $roh === '') {
            return '';
        }
        if (!preg_match('/[\x00-\x08\x0B-\x1F\x7F-\xFF]/', $roh)) {
            return $roh;
        }
        if (!preg_match('//u', $roh)) {
            $roh = strtr($roh, self::tabelle($this->art === 'iso-8859-15' ? 'iso-8859-15' : 'windows-1252'));
        } elseif ($this->art === 'iso-8859-15') {
            $roh = str_replace("\u{A4}", "\u{20AC}", $roh);
        }
        return self::saeubern($roh);
    }

    /** UTF-8 to what the database holds; a character that the shop's set lacks becomes "?". */
    public function schreiben(string $text): string
    {
        if ($this->art === 'utf-8' || !preg_match('/[\x80-\xFF]/', $text)) {
            return $text;
        }
        $bytes = array_flip(self::tabelle($this->art));
        return (string) preg_replace_callback('/[^\x00-\x7F]/u', static function (array $t) use ($bytes): string {
            return isset($bytes[$t[0]]) ? (string) $bytes[$t[0]] : '?';
        }, $text);
    }

    /** A request value, already URL-decoded, from the wire's character set. */
    public static function aus_anfrage(string $roh): string
    {
        return self::saeubern(strtr($roh, self::tabelle('windows-1252')));
    }

    /** UTF-8 to the bytes of XML text on the wire; what Windows-1252 lacks becomes a numeric reference. */
    public static function fuer_ausgabe(string $text): string
    {
        if (strpbrk($text, '&<>"') !== false) {
            $text = strtr($text, ['&' => '&amp;', '<' => '&lt;', '>' => '&gt;', '"' => '&quot;']);
        }
        if (!preg_match('/[\x80-\xFF]/', $text)) {
            return $text;
        }
        return (string) preg_replace_callback('/[^\x00-\x7F]/u', static function (array $t): string {
            if (!isset(self::$ausgabe[$t[0]])) {
                $byte = array_search($t[0], self::tabelle('windows-1252'), true);
                self::$ausgabe[$t[0]] = $byte === false ? '&#' . self::nummer($t[0]) . ';' : (string) $byte;
            }
            return self::$ausgabe[$t[0]];
        }, $text);
    }

    /** Drops what XML forbids and the unassigned controls; line ends become "\n". */
    private static function saeubern(string $text): string
    {
        $text = str_replace(["\r\n", "\r"], "\n", $text);
        return (string) preg_replace('/[\x00-\x08\x0B\x0C\x0E-\x1F\x7F\x{80}-\x{9F}\x{FFFE}\x{FFFF}]/u', '', $text);
    }

    /** @return array<string,string> */
    private static function tabelle(string $art): array
    {
        if (!isset(self::$tabellen[$art])) {
            $tabelle = [];
            for ($byte = 0x80; $byte <= 0xFF; $byte++) {
                $nummer = $byte < 0xA0 ? self::WINDOWS_1252[$byte - 0x80] : $byte;
                if ($art === 'iso-8859-15' && isset(self::ISO_8859_15[$byte])) {
                    $nummer = self::ISO_8859_15[$byte];
                }
                $tabelle[chr($byte)] = $nummer === 0 ? '' : self::zeichen($nummer);
            }
            self::$tabellen[$art] = $tabelle;
        }
        return self::$tabellen[$art];
    }

    private static function zeichen(int $nummer): string
    {
        if ($nummer < 0x800) {
            return chr(0xC0 | $nummer >> 6) . chr(0x80 | $nummer & 0x3F);
        }
        return chr(0xE0 | $nummer >> 12) . chr(0x80 | $nummer >> 6 & 0x3F) . chr(0x80 | $nummer & 0x3F);
    }

    private static function nummer(string $zeichen): int
    {
        $bytes = array_values((array) unpack('C*', $zeichen));
        $nummer = $bytes[0] & (0x7F >> count($bytes));
        foreach (array_slice($bytes, 1) as $byte) {
            $nummer = $nummer << 6 | $byte & 0x3F;
        }
        return $nummer;
    }
}
