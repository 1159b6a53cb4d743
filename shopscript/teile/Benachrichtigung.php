<?php
// The mail that tells a customer about a new status.

declare(strict_types=1);

namespace Marklink;

final class Benachrichtigung
{
    /** True only when the mail was really handed over. $status and $kommentar are UTF-8. */
    public static function senden(Shop $shop, array $bestellung, string $status, string $kommentar): bool
    {
        $empfaenger = self::adresse($shop->text($bestellung, 'customers_email_address'));
        $absender = self::absender($shop);
        $art = $shop->einstellung('mail');
        if ($empfaenger === '' || $absender === '' || $art === 'keine' || $shop->konfiguration('SEND_EMAILS') === 'false') {
            return false;
        }
        $shopname = $shop->konfiguration('STORE_NAME');
        [$betreff, $text] = self::text($shop, $bestellung, $status, $kommentar, $shopname);
        $kopf = [
            'From' => ($shopname === '' ? '' : self::kopftext($shopname) . ' ') . '<' . $absender . '>',
            'MIME-Version' => '1.0',
            'Content-Type' => 'text/plain; charset=UTF-8',
            'Content-Transfer-Encoding' => 'quoted-printable',
        ];
        $text = quoted_printable_encode(str_replace("\n", "\r\n", $text));
        if ($art === 'datei') {
            return self::ablegen($shop->einstellung('mail_ordner'), $empfaenger, self::kopftext($betreff), $kopf, $text);
        }
        // Many hosts switch PHP's own mail off.
        return function_exists('mail') && mail($empfaenger, self::kopftext($betreff), $text, $kopf);
    }

    /** @return string[] subject, body */
    private static function text(Shop $shop, array $bestellung, string $status, string $kommentar, string $shopname): array
    {
        $nummer = (string) $bestellung['orders_id'];
        $name = Anschrift::lesen($shop, $bestellung, 'customers')['NAME'];
        $tag = substr($shop->zeitpunkt($bestellung, 'date_purchased'), 0, 10);
        if ($shop->text($bestellung, 'language') === 'english') {
            return [
                "Your order no. $nummer: $status",
                "Dear $name,\n\nyour order no. $nummer of $tag has been updated.\n\nStatus: $status\n\n"
                . ($kommentar === '' ? '' : "Comments on your order:\n\n$kommentar\n\n")
                . "If you have any questions, please reply to this e-mail.\n\n$shopname\n",
            ];
        }
        $tag = implode('.', array_reverse(explode('-', $tag)));
        return [
            "Ihre Bestellung Nr. $nummer: $status",
            "Guten Tag $name,\n\nIhre Bestellung Nr. $nummer vom $tag wurde aktualisiert.\n\nStatus: $status\n\n"
            . ($kommentar === '' ? '' : "Anmerkungen zu Ihrer Bestellung:\n\n$kommentar\n\n")
            . "Bei Fragen antworten Sie bitte auf diese E-Mail.\n\n$shopname\n",
        ];
    }

    private static function absender(Shop $shop): string
    {
        $liste = [$shop->einstellung('mail_absender')];
        foreach (['EMAIL_BILLING_ADDRESS', 'STORE_OWNER_EMAIL_ADDRESS', 'EMAIL_FROM'] as $schluessel) {
            $liste[] = $shop->konfiguration($schluessel);
        }
        foreach ($liste as $eintrag) {
            $adresse = self::adresse(preg_match('/<([^<>]+)>\s*$/D', $eintrag, $teile) ? $teile[1] : $eintrag);
            if ($adresse !== '') {
                return $adresse;
            }
        }
        return '';
    }

    /** The address when it is exactly one plain address, else ''. So no line end or second recipient gets into a head. */
    private static function adresse(string $text): string
    {
        $adresse = trim($text, ' ');
        return preg_match('/^[\x21-\x7E]+$/D', $adresse) && filter_var($adresse, FILTER_VALIDATE_EMAIL) !== false ? $adresse : '';
    }

    /** Words of at most 75 characters, cut between characters, as mail heads demand. */
    private static function kopftext(string $text): string
    {
        $text = trim((string) preg_replace('/[\x00-\x1F\x7F]+/', ' ', $text));
        $worte = [];
        $stueck = '';
        foreach ((array) preg_split('//u', $text, -1, PREG_SPLIT_NO_EMPTY) as $zeichen) {
            if (strlen($stueck . $zeichen) > 45) {
                $worte[] = $stueck;
                $stueck = '';
            }
            $stueck .= $zeichen;
        }
        $worte[] = $stueck;
        return implode("\r\n ", array_map(static function (string $wort): string {
            return '=?UTF-8?B?' . base64_encode($wort) . '?=';
        }, $worte));
    }

    /** @param array<string,string> $kopf */
    private static function ablegen(string $ordner, string $empfaenger, string $betreff, array $kopf, string $text): bool
    {
        if ($ordner === '' || !is_dir($ordner)) {
            return false;
        }
        $mail = "To: $empfaenger\r\nSubject: $betreff\r\n";
        foreach ($kopf as $name => $wert) {
            $mail .= "$name: $wert\r\n";
        }
        $mail .= "\r\n" . $text;
        return file_put_contents($ordner . '/' . date('Ymd-His') . '-' . uniqid() . '.eml', $mail) === strlen($mail);
    }
}
