<?php
// An address block of an order, with what older shops do not keep made up from what they do.

declare(strict_types=1);

namespace Marklink;

final class Anschrift
{
    /**
     * @param array<string,mixed> $bestellung a row of `orders`
     * @param string $block 'billing', 'delivery' or 'customers'
     * @return array<string,string> by element name
     */
    public static function lesen(Shop $shop, array $bestellung, string $block): array
    {
        $feld = static function (string $name) use ($shop, $bestellung, $block): string {
            return $shop->text($bestellung, $block . '_' . $name);
        };
        $name = $feld('name');
        $vorname = $feld('firstname');
        $nachname = $feld('lastname');
        if ($vorname === '' && $nachname === '') {
            [$vorname, $nachname] = self::name_teilen($name);
        }
        $land = $feld('country_iso_code_2');
        return [
            'COMPANY' => $feld('company'),
            'NAME' => $name === '' ? trim($vorname . ' ' . $nachname) : $name,
            'FIRSTNAME' => $vorname,
            'LASTNAME' => $nachname,
            'STREET' => $feld('street_address'),
            'POSTCODE' => $feld('postcode'),
            'CITY' => $feld('city'),
            'SUBURB' => $feld('suburb'),
            'COUNTRY' => $land === '' ? $shop->land($feld('country')) : $land,
        ];
    }

    /**
     * The billing address. An order that a voucher covers as a whole has none; it belongs to the customer then.
     *
     * @return array<string,string>
     */
    public static function rechnung(Shop $shop, array $bestellung): array
    {
        $anschrift = self::lesen($shop, $bestellung, 'billing');
        return implode('', $anschrift) === '' ? self::lesen($shop, $bestellung, 'customers') : $anschrift;
    }

    /** @return string[] first name(s), last name: the last word is the last name */
    public static function name_teilen(string $name): array
    {
        $stelle = strrpos($name, ' ');
        return $stelle === false ? ['', $name] : [rtrim(substr($name, 0, $stelle)), substr($name, $stelle + 1)];
    }
}
