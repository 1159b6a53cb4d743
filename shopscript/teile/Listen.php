<?php
// The shop's small lists (order status, delivery times, units, customer groups, languages): id and name.

declare(strict_types=1);

namespace Marklink;

final class Listen
{
    /** action => table, id column, name column, root element; the record is the root's name plus "_DATA" */
    private const LISTEN = [
        'get_orders_status' => ['orders_status', 'orders_status_id', 'orders_status_name', 'ORDERS_STATUS'],
        'get_shipping_status' => ['shipping_status', 'shipping_status_id', 'shipping_status_name', 'SHIPPING'],
        'get_products_vpe' => ['products_vpe', 'products_vpe_id', 'products_vpe_name', 'PRODUCTS_VPE'],
        'get_customers_status' => ['customers_status', 'customers_status_id', 'customers_status_name', 'CUSTOMERS_STATUS'],
    ];

    /** @return string[] */
    public static function aktionen(): array
    {
        return array_merge(array_keys(self::LISTEN), ['get_languages']);
    }

    public static function ausgeben(Shop $shop, string $aktion): void
    {
        if ($aktion === 'get_languages') {
            self::sprachen($shop);
            return;
        }
        [$tabelle, $kennung, $name, $wurzel] = self::LISTEN[$aktion];
        $namen = self::namen($shop, $tabelle, $kennung, $name, $shop->sprache());
        $antwort = Antwort::beginnen($wurzel);
        foreach ($namen as $id => $text) {
            $antwort->oeffnen($wurzel . '_DATA');
            $antwort->felder(['ID' => (string) $id, 'NAME' => $text]);
            $antwort->schliessen();
        }
        $antwort->beenden();
    }

    /**
     * One name for an id: the language's own, else the first that there is.
     *
     * @return array<int,string> by id, ascending
     */
    public static function namen(Shop $shop, string $tabelle, string $kennung, string $name, int $sprache): array
    {
        if (!$shop->datenbank->hat($tabelle, $kennung)) {
            return [];
        }
        $namen = [];
        foreach ($shop->datenbank->zeilen("SELECT * FROM $tabelle ORDER BY $kennung, language_id") as $zeile) {
            $id = (int) $zeile[$kennung];
            $text = $shop->text($zeile, $name);
            if (!isset($namen[$id]) || ((int) $zeile['language_id'] === $sprache && $text !== '')) {
                $namen[$id] = $text;
            }
        }
        return $namen;
    }

    private static function sprachen(Shop $shop): void
    {
        $zeilen = $shop->datenbank->zeilen('SELECT * FROM languages ORDER BY sort_order, languages_id');
        $antwort = Antwort::beginnen('LANGUAGES');
        foreach ($zeilen as $zeile) {
            $antwort->oeffnen('LANGUAGES_DATA');
            $antwort->felder(['ID' => (string) $zeile['languages_id']]);
            foreach (['NAME' => 'name', 'CODE' => 'code', 'IMAGE' => 'image', 'DIRECTORY' => 'directory',
                      'SORT_ORDER' => 'sort_order', 'LANGUAGE_CHARSET' => 'language_charset'] as $element => $feld) {
                $antwort->feld($element, $shop->text($zeile, $feld));
            }
            $antwort->schliessen();
        }
        $antwort->beenden();
    }
}
