<?php
// The prices of an order line, brought to what the client reads: the net price of one piece in the order's
// currency, before the line's discount and without the surcharges of its options.

declare(strict_types=1);

namespace Marklink;

final class Preise
{
    /**
     * Always holds: (preis + surcharges), less the discount, plus the line's tax = what the shop charged for a piece.
     *
     * xt:Commerce keeps the final price of a piece, surcharges and discount included, gross where allow_tax is 1, in
     * the order's currency. Its ancestor keeps the bare price and the price with options, net, in the default
     * currency; its rows lack allow_tax.
     *
     * @param array<string,mixed> $zeile a row of `orders_products`
     * @param float $kurs the order's currency_value
     * @param float[] $zuschlaege of the options, net, in the order's currency
     * @return float[] price, discount in percent
     */
    public static function position(array $zeile, float $kurs, array $zuschlaege): array
    {
        $zuschlag = array_sum($zuschlaege);
        if (!array_key_exists('allow_tax', $zeile)) {
            $mit_optionen = (float) ($zeile['final_price'] ?? 0) * $kurs;
            return [$mit_optionen - $zuschlag, 0.0];
        }
        $netto = (float) $zeile['products_price'];
        if ((int) $zeile['allow_tax'] === 1) {
            $netto /= 1 + (float) $zeile['products_tax'] / 100;
        }
        // Rounded as it goes out: the price has to fit it.
        $rabatt = round((float) ($zeile['products_discount_made'] ?? 0), 2);
        if ($rabatt < 0 || $rabatt > 100 || ($rabatt == 100.0 && $netto != 0.0)) {
            // No discount that the charged price could have come from.
            $rabatt = 0.0;
        }
        if ($rabatt == 100.0) {
            // A gift: the shop does not keep the price before the discount.
            return [0.0, $rabatt];
        }
        return [$netto / (1 - $rabatt / 100) - $zuschlag, $rabatt];
    }

    /**
     * Surcharge of one option for one piece: kept net in the default currency.
     *
     * @param array<string,mixed> $zeile a row of `orders_products_attributes`
     */
    public static function zuschlag(array $zeile, float $kurs): float
    {
        $betrag = (float) ($zeile['options_values_price'] ?? 0) * $kurs;
        return trim((string) ($zeile['price_prefix'] ?? '')) === '-' ? -$betrag : $betrag;
    }

    /**
     * Tax rate of a row of the order's totals: a tax row names it in its title; shipping and fees carry none and
     * take the highest rate of the articles, as the shop does not say. Null where there is no single rate.
     *
     * @param float[] $artikelsaetze rates of the lines
     */
    public static function steuersatz(string $klasse, string $titel, array $artikelsaetze, bool $mit_steuer): ?float
    {
        if ($klasse === 'ot_tax') {
            return preg_match('/(\d+(?:[.,]\d+)?)\s*%/', $titel, $treffer) ? (float) str_replace(',', '.', $treffer[1]) : null;
        }
        if (in_array($klasse, ['ot_shipping', 'ot_cod_fee', 'ot_loworderfee', 'ot_payment_fee', 'ot_ps_fee'], true)) {
            return $mit_steuer && $artikelsaetze !== [] ? max($artikelsaetze) : 0.0;
        }
        return null;
    }
}
