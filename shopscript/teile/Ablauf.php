<?php
// From the request to the action: login first, then the one action that is named.

declare(strict_types=1);

namespace Marklink;

final class Ablauf
{
    public const VERSION = '1.0';

    public static function ausfuehren(string $ordner): void
    {
        // Hosts switch such functions off, and calling one is an error then.
        if (function_exists('set_time_limit')) {
            set_time_limit(0);
        }
        try {
            $anfrage = new Anfrage((string) ($_SERVER['QUERY_STRING'] ?? ''));
            $shop = Shop::oeffnen($ordner);
            if (Anmeldung::pruefen($shop, $anfrage)) {
                self::aktion($shop, $anfrage);
            } else {
                Antwort::ablehnung('Die Anmeldung am Shop wurde abgelehnt. Bitte prüfen Sie Benutzer und Kennwort.');
            }
        } catch (\Throwable $fehler) {
            self::protokollieren($fehler);
            // Once a list is on its way it is left unfinished: the client then reads nothing instead of a part.
            if (!headers_sent()) {
                Antwort::ablehnung('Der Shop konnte die Anfrage nicht ausführen.', 503);
            }
        }
    }

    public static function protokollieren(\Throwable $fehler): void
    {
        if (function_exists('error_log')) {
            error_log('Marklink: ' . get_class($fehler) . ': ' . $fehler->getMessage());
        }
    }

    private static function aktion(Shop $shop, Anfrage $anfrage): void
    {
        $aktion = $anfrage->roh('action');
        if (in_array($aktion, Listen::aktionen(), true)) {
            Listen::ausgeben($shop, $aktion);
            return;
        }
        switch ($aktion) {
            case 'get_version':
                Antwort::status('Marklink-Shopscript ' . self::VERSION, ['VERSION' => self::VERSION]);
                break;
            case 'get_orders':
                Bestellungen::ausgeben($shop, $anfrage);
                break;
            case 'get_customers':
                Kunden::ausgeben($shop, $anfrage);
                break;
            case 'set_order_update':
                Bestellstatus::aendern($shop, $anfrage);
                break;
            default:
                Antwort::ablehnung('Die Aktion ist dem Script nicht bekannt.');
        }
    }
}
