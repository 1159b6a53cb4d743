<?php
// Who may ask: an administrator of the shop, or a login of the companion file.

declare(strict_types=1);

namespace Marklink;

final class Anmeldung
{
    /**
     * The client sends the MD5 of the password, so only what can be checked against that counts: the plain MD5
     * that xt:Commerce stores. Salted or slow hashes of the clear password cannot be checked; such shops
     * use a login of the companion file.
     */
    public static function pruefen(Shop $shop, Anfrage $anfrage): bool
    {
        $kennwort = $anfrage->roh('password');
        if (!preg_match('/^[0-9a-f]{32}$/D', $kennwort)) {
            return false;
        }
        // "+" in an address arrives as it stands; some proxies encode it and the "@". Umlauts come as Windows-1252, while
        // the companion file is written in UTF-8 as a rule.
        $roh = rawurldecode($anfrage->roh('user'));
        foreach (array_unique([$anfrage->roh('user'), $roh, Zeichensatz::aus_anfrage($roh)]) as $benutzer) {
            if ($benutzer === '') {
                continue;
            }
            foreach (self::hashes($shop, $benutzer) as $hash) {
                if (preg_match('/^[0-9a-f]{32}$/D', $hash) && hash_equals($hash, $kennwort)) {
                    return true;
                }
            }
        }
        return false;
    }

    /** @return string[] an address is no key in the shop, so there may be several */
    private static function hashes(Shop $shop, string $benutzer): array
    {
        $hashes = [];
        $eigene = $shop->anmeldungen();
        if (isset($eigene[$benutzer])) {
            $hashes[] = strtolower($eigene[$benutzer]);
        }
        // A database that wants UTF-8 fails over other bytes.
        if (preg_match('//u', $benutzer) && $shop->datenbank->hat('customers', 'customers_status')) {
            $zeilen = $shop->datenbank->zeilen(
                'SELECT customers_password FROM customers WHERE customers_status = 0 AND LOWER(customers_email_address) = ?',
                [$shop->zeichensatz->schreiben(strtolower($benutzer))]
            );
            foreach ($zeilen as $zeile) {
                $hashes[] = strtolower((string) $zeile['customers_password']);
            }
        }
        return $hashes;
    }
}
