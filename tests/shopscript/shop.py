"""A shop for the tests: SQLite databases with the columns of xt:Commerce ("XT"), its ancestor ("MS2") and an
offshoot ("MOD"), served by PHP's own web server behind the packed script."""

import hashlib
import os
import shutil
import socket
import sqlite3
import subprocess
import time
import urllib.request
import zlib
import xml.etree.ElementTree as ET

WURZEL = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
SCRIPT = os.path.join(WURZEL, "shopscript")
KENNWORT = hashlib.md5(b"geheim").hexdigest()

BLOECKE = ("customers", "delivery", "billing")
BLOCK_ALT = ("name", "company", "street_address", "suburb", "city", "postcode", "state", "country")


def order_columns(art):
    columns = ["orders_id INTEGER PRIMARY KEY", "customers_id", "customers_email_address", "customers_telephone",
               "payment_method", "cc_owner", "cc_number", "cc_expires", "last_modified", "date_purchased",
               "orders_status", "currency", "currency_value"]
    for block in BLOECKE:
        columns += [f"{block}_{name}" for name in BLOCK_ALT]
        if art != "MS2":
            columns += [f"{block}_firstname", f"{block}_lastname"]
            if block != "customers" or art == "MOD":
                columns.append(f"{block}_country_iso_code_2")
    if art != "MS2":
        columns += ["customers_cid", "customers_vat_id", "customers_status", "customers_status_name",
                    "customers_status_discount", "customers_ip", "payment_class", "shipping_method", "shipping_class",
                    "comments", "language", "cc_cvv"]
    if art == "MOD":
        columns = [c for c in columns if not c.startswith("cc_")] + ["customers_gender"]
    return columns


def schema(art):
    xt = art != "MS2"
    tables = {
        "configuration": ["configuration_key", "configuration_value"],
        "languages": ["languages_id", "name", "code", "image", "directory", "sort_order"] + ["language_charset"] * xt,
        "orders_status": ["orders_status_id", "language_id", "orders_status_name"],
        "countries": ["countries_id", "countries_name", "countries_iso_code_2"],
        "customers": ["customers_id INTEGER PRIMARY KEY", "customers_gender", "customers_firstname", "customers_lastname",
                      "customers_dob", "customers_email_address", "customers_default_address_id", "customers_telephone",
                      "customers_fax", "customers_password"] + ["customers_cid", "customers_vat_id", "customers_status"] * xt,
        "address_book": ["address_book_id INTEGER PRIMARY KEY", "customers_id", "entry_company", "entry_firstname",
                         "entry_lastname", "entry_street_address", "entry_suburb", "entry_postcode", "entry_city",
                         "entry_country_id"],
        "customers_info": ["customers_info_id", "customers_info_date_account_created"],
        "orders": order_columns(art),
        "orders_products": ["orders_products_id INTEGER PRIMARY KEY", "orders_id", "products_id", "products_model",
                            "products_name", "products_price", "final_price", "products_tax", "products_quantity"]
        + ["products_discount_made", "allow_tax"] * xt,
        "orders_products_attributes": ["orders_products_attributes_id INTEGER PRIMARY KEY", "orders_id",
                                       "orders_products_id", "products_options", "products_options_values",
                                       "options_values_price", "price_prefix"],
        "orders_total": ["orders_total_id INTEGER PRIMARY KEY", "orders_id", "title", "text", "value", "class", "sort_order"],
        "orders_status_history": ["orders_status_history_id INTEGER PRIMARY KEY", "orders_id", "orders_status_id",
                                  "date_added", "customer_notified", "comments"] + ["comments_sent"] * (art == "MOD"),
    }
    if xt:
        tables["customers_status"] = ["customers_status_id", "language_id", "customers_status_name"]
        tables["shipping_status"] = ["shipping_status_id", "language_id", "shipping_status_name"]
        tables["products_vpe"] = ["products_vpe_id", "language_id", "products_vpe_name"]
        tables["banktransfer"] = ["orders_id", "banktransfer_owner", "banktransfer_number", "banktransfer_bankname",
                                  "banktransfer_blz"] + ["banktransfer_iban", "banktransfer_bic"] * (art == "MOD")
    return tables


class Shop:
    """One shop below the server's document root."""

    def __init__(self, server, name, art="XT", configure="", settings="", packed=True):
        self.server, self.name = server, name
        self.folder = os.path.join(server.root, name)
        os.makedirs(self.folder + "/includes")
        os.makedirs(self.folder + "/marklink")
        self.mails = self.folder + "-mails"
        os.makedirs(self.mails)
        path = self.folder + ".sqlite"
        with open(self.folder + "/includes/configure.php", "w") as f:
            f.write(configure + "<?php define('DB_DSN', 'sqlite:%s');" % path)
        with open(self.folder + "/marklink/marklink_einstellungen.php", "w") as f:
            f.write("<?php return ['mail' => 'datei', 'mail_ordner' => '%s', 'mail_absender' => 'shop@example.org', %s];"
                    % (self.mails, settings))
        if packed:
            subprocess.run(["php", SCRIPT + "/zusammensetzen.php", self.folder + "/marklink"], check=True)
        else:
            shutil.copy(SCRIPT + "/marklink.php", self.folder + "/marklink")
            shutil.copytree(SCRIPT + "/teile", self.folder + "/marklink/teile")
        self.db = sqlite3.connect(path, isolation_level=None)
        for table, columns in schema(art).items():
            self.db.execute(f"CREATE TABLE {table} ({', '.join(columns)})")
        self.fill(art)

    def fill(self, art):
        self.add("configuration", configuration_key="DEFAULT_LANGUAGE", configuration_value="de")
        self.add("configuration", configuration_key="STORE_NAME", configuration_value="Käsehaus")
        for number, code, folder, names in ((1, "en", "english", ("Pending", "Processing", "Delivered")),
                                            (2, "de", "german", ("Offen", "In Bearbeitung", "Versendet"))):
            self.add("languages", languages_id=number, name=folder, code=code, directory=folder, sort_order=number)
            for status, text in enumerate(names, 1):
                self.add("orders_status", orders_status_id=status, language_id=number, orders_status_name=text)
        for number, name, code in ((81, "Germany", "DE"), (14, "Austria", "AT")):
            self.add("countries", countries_id=number, countries_name=name, countries_iso_code_2=code)
        if art != "MS2":
            self.add("customers_status", customers_status_id=2, language_id=2, customers_status_name="Neuer Kunde")
            self.add("customers", customers_id=1, customers_status=0, customers_email_address="Chef@example.org",
                     customers_password=KENNWORT)

    def add(self, table, **values):
        cursor = self.db.execute("INSERT INTO %s (%s) VALUES (%s)" % (
            table, ", ".join(values), ", ".join("?" * len(values))), list(values.values()))
        return cursor.lastrowid

    def order(self, number, **values):
        known = {row[1] for row in self.db.execute("PRAGMA table_info(orders)")}
        row = dict(orders_id=number, customers_id=7, customers_email_address="kunde@example.org", orders_status=1,
                   date_purchased="2024-03-05 14:07:09", currency="EUR", currency_value=1, language="german",
                   customers_name="Hans Peter Groß", customers_country="Germany", billing_name="Hans Peter Groß",
                   billing_city="Köln", billing_country="Germany", customers_status_discount="0.00", payment_method="cod",
                   payment_class="cod", shipping_class="dp_dp")
        row.update(values)
        self.add("orders", **{k: v for k, v in row.items() if k in known})

    def raw(self, query, headers=None):
        """Status, headers and body as sent; the query is not touched."""
        request = urllib.request.Request(f"http://127.0.0.1:{self.server.port}/{self.name}/marklink/marklink.php?{query}",
                                         headers=headers or {})
        try:
            with urllib.request.urlopen(request, timeout=60) as reply:
                return reply.status, reply.headers, reply.read()
        except urllib.error.HTTPError as error:
            return error.code, error.headers, error.read()

    def ask(self, action, rest="", user="chef@example.org", password=KENNWORT):
        """The reply's root element."""
        return ET.fromstring(self.raw(f"action={action}&user={user}&password={password}{rest}")[2])

    def answer(self, action, rest="", **login):
        """Message and error mark of a status reply; of another one its root element's name."""
        root = self.ask(action, rest, **login)
        return (root.findtext("STATUS_DATA/MESSAGE"), root.findtext("STATUS_DATA/ERROR")) if root.tag == "STATUS" else root.tag

    def dump(self):
        return "\n".join(self.db.iterdump())

    def taken_mails(self):
        files = sorted(os.listdir(self.mails))
        texts = [open(os.path.join(self.mails, f), "rb").read() for f in files]
        for f in files:
            os.unlink(os.path.join(self.mails, f))
        return texts


class Server:
    """Memory is capped, so that a reply that is held as a whole fails."""

    def __init__(self, root, mail_file, *settings):
        self.root = root
        with socket.socket() as s:
            s.bind(("127.0.0.1", 0))
            self.port = s.getsockname()[1]
        self.log = open(root + ".log", "wb")
        self.process = subprocess.Popen(
            ["php", "-d", "memory_limit=16M", "-d", "display_errors=1", "-d", "error_reporting=-1", "-d", "log_errors=1",
             "-d", f"sendmail_path=cat > {mail_file}", *settings, "-S", f"127.0.0.1:{self.port}", "-t", root],
            stdout=self.log, stderr=self.log)
        for _ in range(200):
            with socket.socket() as s:
                if s.connect_ex(("127.0.0.1", self.port)) == 0:
                    return
            time.sleep(0.02)
        raise RuntimeError("php -S does not answer")

    def stop(self):
        self.process.terminate()
        self.process.wait()
        self.log.close()


def inflate(body):
    return zlib.decompress(body)
