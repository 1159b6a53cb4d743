<?php
// The reply: an XML document in Windows-1252 that goes out piece by piece, deflated when the client takes that.

declare(strict_types=1);

namespace Marklink;

final class Antwort
{
    private const STUECK = 32768;

    /** @var string */
    private $puffer = '';

    /** @var string[] */
    private $offen = [];

    /** @var resource|\DeflateContext|null */
    private $verdichter = null;

    private function __construct(int $http_status)
    {
        // Drops what the shop's files have printed so far.
        while (ob_get_level() > 0) {
            ob_end_clean();
        }
        http_response_code($http_status);
        header('Content-Type: text/xml; charset=windows-1252');
        header('Cache-Control: no-store');
        header('X-Content-Type-Options: nosniff');
        header('Vary: Accept-Encoding');
        if (function_exists('deflate_init') && self::deflate_erlaubt((string) ($_SERVER['HTTP_ACCEPT_ENCODING'] ?? ''))) {
            $this->verdichter = deflate_init(ZLIB_ENCODING_DEFLATE, ['level' => 6]);
            header('Content-Encoding: deflate');
        }
        $this->puffer = '<?xml version="1.0" encoding="windows-1252"?>' . "\n";
    }

    /** From here on bytes leave the server: whatever can refuse the request has to come before. */
    public static function beginnen(string $wurzel): self
    {
        $antwort = new self(200);
        $antwort->oeffnen($wurzel);
        return $antwort;
    }

    /**
     * The general reply of an action without a list, done as asked.
     *
     * @param array<string,string> $weitere further children
     */
    public static function status(string $meldung, array $weitere = []): void
    {
        self::melden($meldung, '0', $weitere, 200);
    }

    /** The same for a request that was refused: nothing was done. */
    public static function ablehnung(string $meldung, int $http_status = 200): void
    {
        self::melden($meldung, '1', [], $http_status);
    }

    /** @param array<string,string> $weitere */
    private static function melden(string $meldung, string $fehler, array $weitere, int $http_status): void
    {
        $antwort = new self($http_status);
        $antwort->oeffnen('STATUS');
        $antwort->oeffnen('STATUS_DATA');
        $antwort->felder(['MESSAGE' => $meldung, 'ERROR' => $fehler] + $weitere);
        $antwort->schliessen();
        $antwort->beenden();
    }

    public function oeffnen(string $name): void
    {
        $this->offen[] = $name;
        $this->puffer .= '<' . $name . '>';
    }

    public function schliessen(): void
    {
        $this->puffer .= '</' . array_pop($this->offen) . '>';
        if (count($this->offen) === 1) {
            $this->puffer .= "\n";
            if (strlen($this->puffer) >= self::STUECK) {
                $this->senden();
            }
        }
    }

    public function feld(string $name, string $text): void
    {
        $this->puffer .= '<' . $name . '>' . Zeichensatz::fuer_ausgabe($text) . '</' . $name . '>';
    }

    /** @param array<string,string> $felder */
    public function felder(array $felder): void
    {
        foreach ($felder as $name => $text) {
            $this->feld($name, $text);
        }
    }

    public function beenden(): void
    {
        while ($this->offen !== []) {
            $this->schliessen();
        }
        $this->senden(true);
    }

    private function senden(bool $ende = false): void
    {
        if ($this->verdichter !== null) {
            $this->puffer = (string) deflate_add($this->verdichter, $this->puffer, $ende ? ZLIB_FINISH : ZLIB_NO_FLUSH);
        }
        echo $this->puffer;
        $this->puffer = '';
        flush();
    }

    private static function deflate_erlaubt(string $kopf): bool
    {
        foreach (explode(',', strtolower(str_replace(' ', '', $kopf))) as $art) {
            if (preg_match('/^deflate(;q=(?!0(\.0*)?$).*)?$/D', $art)) {
                return true;
            }
        }
        return false;
    }
}
