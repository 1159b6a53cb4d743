<?php
// Action set_order_update: a new status or comment for an order, written as the shop's own administration does it.

declare(strict_types=1);

namespace Marklink;

final class Bestellstatus
{
    public static function aendern(Shop $shop, Anfrage $anfrage): void
    {
        if (function_exists('ignore_user_abort')) {
            ignore_user_abort(true);
        }
        $bestellnummer = $anfrage->kennung('order_id');
        $status = $anfrage->kennung('status');
        if ($bestellnummer === null || $status === null) {
            Antwort::ablehnung($bestellnummer === null ? 'Die Bestellnummer ist ungültig.' : 'Der Bestellstatus ist ungültig.');
            return;
        }
        $bestellung = $shop->datenbank->zeile('SELECT * FROM orders WHERE orders_id = ?', [$bestellnummer]);
        if ($bestellung === null) {
            Antwort::ablehnung('Die Bestellung ' . $bestellnummer . ' ist im Shop nicht vorhanden.');
            return;
        }
        if ($shop->datenbank->zeile('SELECT 1 AS da FROM orders_status WHERE orders_status_id = ?', [$status]) === null) {
            Antwort::ablehnung('Der Bestellstatus ' . $status . ' ist im Shop nicht vorhanden.');
            return;
        }
        $kommentar = trim($anfrage->text('comments'));
        if ((int) $bestellung['orders_status'] === $status && $kommentar === '') {
            // Neither a new status nor a comment: the shop records nothing and mails nobody.
            Antwort::status('Der Status der Bestellung ist unverändert.');
            return;
        }
        $zeile = self::speichern($shop, $bestellnummer, $status, $kommentar);
        Antwort::status(self::benachrichtigen($shop, $anfrage, $bestellung, $status, $kommentar, $zeile));
    }

    /** @return int the id of the history row */
    private static function speichern(Shop $shop, int $bestellnummer, int $status, string $kommentar): int
    {
        $datenbank = $shop->datenbank;
        $zeile = 0;
        $datenbank->gemeinsam(static function () use ($shop, $datenbank, $bestellnummer, $status, $kommentar, &$zeile): void {
            $jetzt = $datenbank->jetzt();
            $datenbank->ausfuehren(
                "UPDATE orders SET orders_status = ?, last_modified = $jetzt WHERE orders_id = ?",
                [$status, $bestellnummer]
            );
            $datenbank->ausfuehren(
                'INSERT INTO orders_status_history (orders_id, orders_status_id, date_added, customer_notified, comments)'
                . " VALUES (?, ?, $jetzt, 0, ?)",
                [$bestellnummer, $status, $shop->zeichensatz->schreiben($kommentar)]
            );
            $zeile = $datenbank->letzte_kennung();
        });
        return $zeile;
    }

    /**
     * Mails only when asked, and records it only when the mail was taken. The status is written by now: whatever
     * fails here must not look as if it were not.
     */
    private static function benachrichtigen(
        Shop $shop,
        Anfrage $anfrage,
        array $bestellung,
        int $status,
        string $kommentar,
        int $zeile
    ): string {
        if ($anfrage->roh('notify') !== 'on') {
            return 'Der Status der Bestellung wurde geändert.';
        }
        try {
            $gesendet = self::mailen($shop, $anfrage, $bestellung, $status, $kommentar, $zeile);
        } catch (\Throwable $fehler) {
            Ablauf::protokollieren($fehler);
            $gesendet = false;
        }
        return $gesendet
            ? 'Der Status der Bestellung wurde geändert und der Kunde benachrichtigt.'
            : 'Der Status der Bestellung wurde geändert. Die E-Mail an den Kunden konnte nicht gesendet werden.';
    }

    private static function mailen(
        Shop $shop,
        Anfrage $anfrage,
        array $bestellung,
        int $status,
        string $kommentar,
        int $zeile
    ): bool {
        $mit_kommentar = $anfrage->roh('notify_comments') === 'on' && $kommentar !== '';
        $namen = Listen::namen(
            $shop,
            'orders_status',
            'orders_status_id',
            'orders_status_name',
            $shop->sprache_der_bestellung($shop->text($bestellung, 'language'))
        );
        if (!Benachrichtigung::senden($shop, $bestellung, $namen[$status], $mit_kommentar ? $kommentar : '')) {
            return false;
        }
        try {
            self::vermerken($shop, $mit_kommentar, $zeile);
        } catch (\Throwable $fehler) {
            Ablauf::protokollieren($fehler); // the mail has gone all the same
        }
        return true;
    }

    private static function vermerken(Shop $shop, bool $mit_kommentar, int $zeile): void
    {
        $gesendet = $mit_kommentar && $shop->datenbank->hat('orders_status_history', 'comments_sent') ? ', comments_sent = 1' : '';
        $shop->datenbank->ausfuehren(
            "UPDATE orders_status_history SET customer_notified = 1$gesendet WHERE orders_status_history_id = ?",
            [$zeile]
        );
    }
}
