<?php
// The request: the query string taken apart by the client's rules.

declare(strict_types=1);

namespace Marklink;

final class Anfrage
{
    /** @var array<string,string> as sent, not decoded */
    private $werte = [];

    public function __construct(string $abfrage)
    {
        foreach (explode('&', $abfrage) as $paar) {
            $teile = explode('=', $paar, 2);
            if (!isset($this->werte[$teile[0]])) {
                $this->werte[$teile[0]] = $teile[1] ?? '';
            }
        }
    }

    public function vorhanden(string $name): bool
    {
        return isset($this->werte[$name]);
    }

    /** Undecoded: the client sends user and password as they stand, where "+" is a plus sign. */
    public function roh(string $name): string
    {
        return $this->werte[$name] ?? '';
    }

    /** Free text, sent URL-encoded in Windows-1252; UTF-8 here. */
    public function text(string $name): string
    {
        return Zeichensatz::aus_anfrage(urldecode($this->roh($name)));
    }

    /** One id, or null when it is anything else. */
    public function kennung(string $name): ?int
    {
        return preg_match('/^[0-9]{1,9}$/D', $this->roh($name)) ? (int) $this->roh($name) : null;
    }

    /**
     * A list like '1','3', with or without apostrophes; null when one entry is no id. The text never
     * reaches a statement: only the numbers do.
     *
     * @return int[]|null
     */
    public function kennungen(string $name): ?array
    {
        $liste = [];
        foreach (explode(',', urldecode($this->roh($name))) as $eintrag) {
            if (!preg_match('/^\s*(\'?)([0-9]{1,9})\1\s*$/D', $eintrag, $treffer)) {
                return null;
            }
            $liste[] = (int) $treffer[2];
        }
        return array_values(array_unique($liste));
    }
}
