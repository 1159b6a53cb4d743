// The tables of the demo shop, with the column names and defaults of xt:Commerce 3.0.4. Columns that a shop
// has no default for have none here either, so a writer that forgets one fails in the demo as well.
#include "Demoshop.h"

namespace marklink::demo {

namespace {

const char *const Listen = R"sql(
CREATE TABLE languages (languages_id INTEGER PRIMARY KEY AUTOINCREMENT, name VARCHAR(32) NOT NULL, code CHAR(2) NOT NULL,
  image VARCHAR(64), directory VARCHAR(32), sort_order INT(3), language_charset TEXT NOT NULL);
CREATE TABLE configuration (configuration_id INTEGER PRIMARY KEY AUTOINCREMENT, configuration_key VARCHAR(64) NOT NULL,
  configuration_value VARCHAR(255) NOT NULL, configuration_group_id INT NOT NULL, sort_order INT(5), last_modified DATETIME,
  date_added DATETIME NOT NULL, use_function VARCHAR(255), set_function VARCHAR(255));
CREATE TABLE orders_status (orders_status_id INT NOT NULL DEFAULT 0, language_id INT NOT NULL DEFAULT 1,
  orders_status_name VARCHAR(32) NOT NULL, PRIMARY KEY (orders_status_id, language_id));
CREATE TABLE shipping_status (shipping_status_id INT NOT NULL DEFAULT 0, language_id INT NOT NULL DEFAULT 1,
  shipping_status_name VARCHAR(32) NOT NULL, shipping_status_image VARCHAR(32) NOT NULL,
  PRIMARY KEY (shipping_status_id, language_id));
CREATE TABLE products_vpe (products_vpe_id INT(11) NOT NULL DEFAULT 0, language_id INT(11) NOT NULL DEFAULT 0,
  products_vpe_name VARCHAR(32) NOT NULL DEFAULT '');
CREATE TABLE customers_status (customers_status_id INT(11) NOT NULL DEFAULT 0, language_id INT(11) NOT NULL DEFAULT 1,
  customers_status_name VARCHAR(32) NOT NULL DEFAULT '', customers_status_public INT(1) NOT NULL DEFAULT 1,
  customers_status_min_order INT(7), customers_status_max_order INT(7), customers_status_image VARCHAR(64),
  customers_status_discount DECIMAL(4,2) DEFAULT 0, customers_status_ot_discount_flag CHAR(1) NOT NULL DEFAULT '0',
  customers_status_ot_discount DECIMAL(4,2) DEFAULT 0, customers_status_graduated_prices VARCHAR(1) NOT NULL DEFAULT '0',
  customers_status_show_price INT(1) NOT NULL DEFAULT 1, customers_status_show_price_tax INT(1) NOT NULL DEFAULT 1,
  customers_status_add_tax_ot INT(1) NOT NULL DEFAULT 0, customers_status_payment_unallowed VARCHAR(255) NOT NULL,
  customers_status_shipping_unallowed VARCHAR(255) NOT NULL, customers_status_discount_attributes INT(1) NOT NULL DEFAULT 0,
  customers_fsk18 INT(1) NOT NULL DEFAULT 1, customers_fsk18_display INT(1) NOT NULL DEFAULT 1,
  customers_status_write_reviews INT(1) NOT NULL DEFAULT 1, customers_status_read_reviews INT(1) NOT NULL DEFAULT 1,
  PRIMARY KEY (customers_status_id, language_id));
CREATE TABLE tax_class (tax_class_id INTEGER PRIMARY KEY AUTOINCREMENT, tax_class_title VARCHAR(32) NOT NULL,
  tax_class_description VARCHAR(255) NOT NULL, last_modified DATETIME, date_added DATETIME NOT NULL);
CREATE TABLE tax_rates (tax_rates_id INTEGER PRIMARY KEY AUTOINCREMENT, tax_zone_id INT NOT NULL, tax_class_id INT NOT NULL,
  tax_priority INT(5) DEFAULT 1, tax_rate DECIMAL(7,4) NOT NULL, tax_description VARCHAR(255) NOT NULL,
  last_modified DATETIME, date_added DATETIME NOT NULL);
CREATE TABLE geo_zones (geo_zone_id INTEGER PRIMARY KEY AUTOINCREMENT, geo_zone_name VARCHAR(32) NOT NULL,
  geo_zone_description VARCHAR(255) NOT NULL, last_modified DATETIME, date_added DATETIME NOT NULL);
CREATE TABLE zones_to_geo_zones (association_id INTEGER PRIMARY KEY AUTOINCREMENT, zone_country_id INT NOT NULL, zone_id INT,
  geo_zone_id INT, last_modified DATETIME, date_added DATETIME NOT NULL);
CREATE TABLE countries (countries_id INTEGER PRIMARY KEY AUTOINCREMENT, countries_name VARCHAR(64) NOT NULL,
  countries_iso_code_2 CHAR(2) NOT NULL, countries_iso_code_3 CHAR(3) NOT NULL, address_format_id INT NOT NULL,
  status INT(1) DEFAULT 1);
CREATE TABLE zones (zone_id INTEGER PRIMARY KEY AUTOINCREMENT, zone_country_id INT NOT NULL, zone_code VARCHAR(32) NOT NULL,
  zone_name VARCHAR(32) NOT NULL);
CREATE TABLE address_format (address_format_id INTEGER PRIMARY KEY AUTOINCREMENT, address_format VARCHAR(128) NOT NULL,
  address_summary VARCHAR(48) NOT NULL);
CREATE TABLE currencies (currencies_id INTEGER PRIMARY KEY AUTOINCREMENT, title VARCHAR(32) NOT NULL, code CHAR(3) NOT NULL,
  symbol_left VARCHAR(12), symbol_right VARCHAR(12), decimal_point CHAR(1), thousands_point CHAR(1), decimal_places CHAR(1),
  value FLOAT(13,8), last_updated DATETIME);
CREATE TABLE newsletter_recipients (mail_id INTEGER PRIMARY KEY AUTOINCREMENT, customers_email_address VARCHAR(96) NOT NULL DEFAULT '',
  customers_id INT(11) NOT NULL DEFAULT 0, customers_status INT(5) NOT NULL DEFAULT 0, customers_firstname VARCHAR(32) NOT NULL DEFAULT '',
  customers_lastname VARCHAR(32) NOT NULL DEFAULT '', mail_status INT(1) NOT NULL DEFAULT 0, mail_key VARCHAR(32) NOT NULL DEFAULT '',
  date_added DATETIME NOT NULL DEFAULT '0000-00-00 00:00:00');
)sql";

const char *const Artikeltabellen = R"sql(
CREATE TABLE categories (categories_id INTEGER PRIMARY KEY AUTOINCREMENT, categories_image VARCHAR(64), parent_id INT NOT NULL DEFAULT 0,
  categories_status TINYINT(1) NOT NULL DEFAULT 1, categories_template VARCHAR(64), %1, listing_template VARCHAR(64),
  sort_order INT(3), products_sorting VARCHAR(32), products_sorting2 VARCHAR(32), date_added DATETIME, last_modified DATETIME);
CREATE TABLE categories_description (categories_id INT NOT NULL DEFAULT 0, language_id INT NOT NULL DEFAULT 1,
  categories_name VARCHAR(32) NOT NULL, categories_heading_title VARCHAR(255) NOT NULL, categories_description TEXT NOT NULL,
  categories_meta_title VARCHAR(100) NOT NULL, categories_meta_description VARCHAR(255) NOT NULL,
  categories_meta_keywords VARCHAR(255) NOT NULL, PRIMARY KEY (categories_id, language_id));
CREATE TABLE products (products_id INTEGER PRIMARY KEY AUTOINCREMENT, products_ean VARCHAR(128), products_quantity INT(4) NOT NULL,
  products_shippingtime INT(4) NOT NULL, products_model VARCHAR(64), %1, products_sort INT(4) NOT NULL DEFAULT 0,
  products_image VARCHAR(64), products_price DECIMAL(15,4) NOT NULL, products_discount_allowed DECIMAL(3,2) NOT NULL DEFAULT 0,
  products_date_added DATETIME NOT NULL, products_last_modified DATETIME, products_date_available DATETIME,
  products_weight DECIMAL(5,2) NOT NULL, products_status TINYINT(1) NOT NULL, products_tax_class_id INT NOT NULL,
  product_template VARCHAR(64), options_template VARCHAR(64), manufacturers_id INT, products_ordered INT NOT NULL DEFAULT 0,
  products_fsk18 INT(1) NOT NULL DEFAULT 0, products_vpe INT(11) NOT NULL, products_vpe_status INT(1) NOT NULL DEFAULT 0,
  products_vpe_value DECIMAL(15,4) NOT NULL, products_startpage INT(1) NOT NULL DEFAULT 0, products_startpage_sort INT(4) NOT NULL DEFAULT 0);
CREATE TABLE products_description (products_id INT NOT NULL, language_id INT NOT NULL DEFAULT 1, products_name VARCHAR(64) NOT NULL DEFAULT '',
  products_description TEXT, products_short_description TEXT, products_keywords VARCHAR(255), products_meta_title TEXT NOT NULL,
  products_meta_description TEXT NOT NULL, products_meta_keywords TEXT NOT NULL, products_url VARCHAR(255), products_viewed INT(5) DEFAULT 0,
  PRIMARY KEY (products_id, language_id));
CREATE TABLE products_to_categories (products_id INT NOT NULL, categories_id INT NOT NULL, PRIMARY KEY (products_id, categories_id));
CREATE TABLE products_images (image_id INTEGER PRIMARY KEY AUTOINCREMENT, products_id INT(11) NOT NULL, image_nr SMALLINT NOT NULL,
  image_name VARCHAR(254) NOT NULL);
CREATE TABLE products_options (products_options_id INT NOT NULL DEFAULT 0, language_id INT NOT NULL DEFAULT 1,
  products_options_name VARCHAR(32) NOT NULL DEFAULT '', PRIMARY KEY (products_options_id, language_id));
CREATE TABLE products_options_values (products_options_values_id INT NOT NULL DEFAULT 0, language_id INT NOT NULL DEFAULT 1,
  products_options_values_name VARCHAR(64) NOT NULL DEFAULT '', PRIMARY KEY (products_options_values_id, language_id));
CREATE TABLE products_options_values_to_products_options (products_options_values_to_products_options_id INTEGER PRIMARY KEY AUTOINCREMENT,
  products_options_id INT NOT NULL, products_options_values_id INT NOT NULL);
CREATE TABLE products_attributes (products_attributes_id INTEGER PRIMARY KEY AUTOINCREMENT, products_id INT NOT NULL, options_id INT NOT NULL,
  options_values_id INT NOT NULL, options_values_price DECIMAL(15,4) NOT NULL, price_prefix CHAR(1) NOT NULL, attributes_model VARCHAR(64),
  attributes_stock INT(4), options_values_weight DECIMAL(15,4) NOT NULL, weight_prefix CHAR(1) NOT NULL, sortorder INT(11));
CREATE TABLE products_attributes_download (products_attributes_id INT NOT NULL PRIMARY KEY, products_attributes_filename VARCHAR(255) NOT NULL DEFAULT '',
  products_attributes_maxdays INT(2) DEFAULT 0, products_attributes_maxcount INT(2) DEFAULT 0);
CREATE TABLE products_xsell (ID INTEGER PRIMARY KEY AUTOINCREMENT, products_id INT NOT NULL DEFAULT 1,
  products_xsell_grp_name_id INT NOT NULL DEFAULT 1, xsell_id INT NOT NULL DEFAULT 1, sort_order INT NOT NULL DEFAULT 1);
CREATE TABLE products_content (content_id INTEGER PRIMARY KEY AUTOINCREMENT, products_id INT NOT NULL DEFAULT 0, group_ids TEXT,
  content_name VARCHAR(32) NOT NULL DEFAULT '', content_file VARCHAR(64) NOT NULL, content_link TEXT NOT NULL,
  languages_id INT NOT NULL DEFAULT 0, content_read INT NOT NULL DEFAULT 0, file_comment TEXT NOT NULL);
CREATE TABLE products_graduated_prices (products_id INT NOT NULL DEFAULT 0, quantity INT NOT NULL DEFAULT 0,
  unitprice DECIMAL(15,4) NOT NULL DEFAULT 0);
CREATE TABLE manufacturers (manufacturers_id INTEGER PRIMARY KEY AUTOINCREMENT, manufacturers_name VARCHAR(32) NOT NULL,
  manufacturers_image VARCHAR(64), date_added DATETIME, last_modified DATETIME);
CREATE TABLE manufacturers_info (manufacturers_id INT NOT NULL, languages_id INT NOT NULL, manufacturers_meta_title VARCHAR(100) NOT NULL,
  manufacturers_meta_description VARCHAR(255) NOT NULL, manufacturers_meta_keywords VARCHAR(255) NOT NULL, manufacturers_url VARCHAR(255) NOT NULL,
  url_clicked INT(5) NOT NULL DEFAULT 0, date_last_click DATETIME, PRIMARY KEY (manufacturers_id, languages_id));
CREATE TABLE specials (specials_id INTEGER PRIMARY KEY AUTOINCREMENT, products_id INT NOT NULL, specials_quantity INT(4) NOT NULL,
  specials_new_products_price DECIMAL(15,4) NOT NULL, specials_date_added DATETIME, specials_last_modified DATETIME, expires_date DATETIME,
  date_status_change DATETIME, status INT(1) NOT NULL DEFAULT 1);
CREATE TABLE reviews (reviews_id INTEGER PRIMARY KEY AUTOINCREMENT, products_id INT NOT NULL, customers_id INT,
  customers_name VARCHAR(64) NOT NULL, reviews_rating INT(1), date_added DATETIME, last_modified DATETIME, reviews_read INT(5) NOT NULL DEFAULT 0);
CREATE TABLE reviews_description (reviews_id INT NOT NULL, languages_id INT NOT NULL, reviews_text TEXT NOT NULL,
  PRIMARY KEY (reviews_id, languages_id));
)sql";

const char *const Kundentabellen = R"sql(
CREATE TABLE customers (customers_id INTEGER PRIMARY KEY AUTOINCREMENT, customers_cid VARCHAR(32), customers_vat_id VARCHAR(20),
  customers_vat_id_status INT(2) NOT NULL DEFAULT 0, customers_warning VARCHAR(32), customers_status INT(5) NOT NULL DEFAULT 1,
  customers_gender CHAR(1) NOT NULL, customers_firstname VARCHAR(32) NOT NULL, customers_lastname VARCHAR(32) NOT NULL,
  customers_dob DATETIME NOT NULL DEFAULT '0000-00-00 00:00:00', customers_email_address VARCHAR(96) NOT NULL,
  customers_default_address_id INT NOT NULL, customers_telephone VARCHAR(32) NOT NULL, customers_fax VARCHAR(32),
  customers_password VARCHAR(40) NOT NULL, customers_newsletter CHAR(1), customers_newsletter_mode CHAR(1) NOT NULL DEFAULT '0',
  member_flag CHAR(1) NOT NULL DEFAULT '0', delete_user CHAR(1) NOT NULL DEFAULT '1', account_type INT(1) NOT NULL DEFAULT 0,
  password_request_key VARCHAR(32) NOT NULL, payment_unallowed VARCHAR(255) NOT NULL, shipping_unallowed VARCHAR(255) NOT NULL,
  refferers_id INT(5) NOT NULL DEFAULT 0, customers_date_added DATETIME DEFAULT '0000-00-00 00:00:00',
  customers_last_modified DATETIME DEFAULT '0000-00-00 00:00:00');
CREATE TABLE address_book (address_book_id INTEGER PRIMARY KEY AUTOINCREMENT, customers_id INT NOT NULL, entry_gender CHAR(1) NOT NULL,
  entry_company VARCHAR(32), entry_firstname VARCHAR(32) NOT NULL, entry_lastname VARCHAR(32) NOT NULL,
  entry_street_address VARCHAR(64) NOT NULL, entry_suburb VARCHAR(32), entry_postcode VARCHAR(10) NOT NULL, entry_city VARCHAR(32) NOT NULL,
  entry_state VARCHAR(32), entry_country_id INT NOT NULL DEFAULT 0, entry_zone_id INT NOT NULL DEFAULT 0,
  address_date_added DATETIME DEFAULT '0000-00-00 00:00:00', address_last_modified DATETIME DEFAULT '0000-00-00 00:00:00');
CREATE TABLE customers_info (customers_info_id INT NOT NULL PRIMARY KEY, customers_info_date_of_last_logon DATETIME,
  customers_info_number_of_logons INT(5), customers_info_date_account_created DATETIME, customers_info_date_account_last_modified DATETIME,
  global_product_notifications INT(1) DEFAULT 0);
CREATE TABLE customers_memo (memo_id INTEGER PRIMARY KEY AUTOINCREMENT, customers_id INT(11) NOT NULL DEFAULT 0,
  memo_date DATE NOT NULL DEFAULT '0000-00-00', memo_title TEXT NOT NULL, memo_text TEXT NOT NULL, poster_id INT(11) NOT NULL DEFAULT 0);
CREATE TABLE customers_basket (customers_basket_id INTEGER PRIMARY KEY AUTOINCREMENT, customers_id INT NOT NULL, products_id TEXT NOT NULL,
  customers_basket_quantity INT(2) NOT NULL, final_price DECIMAL(15,4) NOT NULL, customers_basket_date_added CHAR(8));
CREATE TABLE customers_basket_attributes (customers_basket_attributes_id INTEGER PRIMARY KEY AUTOINCREMENT, customers_id INT NOT NULL,
  products_id TEXT NOT NULL, products_options_id INT NOT NULL, products_options_value_id INT NOT NULL);
)sql";

const char *const Bestelltabellen = R"sql(
CREATE TABLE orders (orders_id INTEGER PRIMARY KEY AUTOINCREMENT, customers_id INT NOT NULL, customers_cid VARCHAR(32),
  customers_vat_id VARCHAR(20), customers_status INT(11), customers_status_name VARCHAR(32) NOT NULL, customers_status_image VARCHAR(64),
  customers_status_discount DECIMAL(4,2), customers_name VARCHAR(64) NOT NULL, customers_firstname VARCHAR(64) NOT NULL,
  customers_lastname VARCHAR(64) NOT NULL, customers_company VARCHAR(32), customers_street_address VARCHAR(64) NOT NULL,
  customers_suburb VARCHAR(32), customers_city VARCHAR(32) NOT NULL, customers_postcode VARCHAR(10) NOT NULL, customers_state VARCHAR(32),
  customers_country VARCHAR(32) NOT NULL, customers_telephone VARCHAR(32) NOT NULL, customers_email_address VARCHAR(96) NOT NULL,
  customers_address_format_id INT(5) NOT NULL, delivery_name VARCHAR(64) NOT NULL, delivery_firstname VARCHAR(64) NOT NULL,
  delivery_lastname VARCHAR(64) NOT NULL, delivery_company VARCHAR(32), delivery_street_address VARCHAR(64) NOT NULL,
  delivery_suburb VARCHAR(32), delivery_city VARCHAR(32) NOT NULL, delivery_postcode VARCHAR(10) NOT NULL, delivery_state VARCHAR(32),
  delivery_country VARCHAR(32) NOT NULL, delivery_country_iso_code_2 CHAR(2) NOT NULL, delivery_address_format_id INT(5) NOT NULL,
  billing_name VARCHAR(64) NOT NULL, billing_firstname VARCHAR(64) NOT NULL, billing_lastname VARCHAR(64) NOT NULL,
  billing_company VARCHAR(32), billing_street_address VARCHAR(64) NOT NULL, billing_suburb VARCHAR(32), billing_city VARCHAR(32) NOT NULL,
  billing_postcode VARCHAR(10) NOT NULL, billing_state VARCHAR(32), billing_country VARCHAR(32) NOT NULL,
  billing_country_iso_code_2 CHAR(2) NOT NULL, billing_address_format_id INT(5) NOT NULL, payment_method VARCHAR(32) NOT NULL,
  cc_type VARCHAR(20), cc_owner VARCHAR(64), cc_number VARCHAR(64), cc_expires VARCHAR(4), cc_start VARCHAR(4), cc_issue VARCHAR(3),
  cc_cvv VARCHAR(4), comments VARCHAR(255), last_modified DATETIME, date_purchased DATETIME, orders_status INT(5) NOT NULL,
  orders_date_finished DATETIME, currency CHAR(3), currency_value DECIMAL(14,6), account_type INT(1) NOT NULL DEFAULT 0,
  payment_class VARCHAR(32) NOT NULL, shipping_method VARCHAR(32) NOT NULL, shipping_class VARCHAR(32) NOT NULL,
  customers_ip VARCHAR(32) NOT NULL, language VARCHAR(32) NOT NULL, afterbuy_success INT(1) NOT NULL DEFAULT 0,
  afterbuy_id INT(32) NOT NULL DEFAULT 0, refferers_id VARCHAR(32) NOT NULL, conversion_type INT(1) NOT NULL DEFAULT 0,
  orders_ident_key VARCHAR(128));
CREATE TABLE orders_products (orders_products_id INTEGER PRIMARY KEY AUTOINCREMENT, orders_id INT NOT NULL, products_id INT NOT NULL,
  products_model VARCHAR(64), products_name VARCHAR(64) NOT NULL, products_price DECIMAL(15,4) NOT NULL,
  products_discount_made DECIMAL(4,2), products_shipping_time VARCHAR(255), final_price DECIMAL(15,4) NOT NULL,
  products_tax DECIMAL(7,4) NOT NULL, products_quantity INT(2) NOT NULL, allow_tax INT(1) NOT NULL);
CREATE TABLE orders_products_attributes (orders_products_attributes_id INTEGER PRIMARY KEY AUTOINCREMENT, orders_id INT NOT NULL,
  orders_products_id INT NOT NULL, products_options VARCHAR(32) NOT NULL, products_options_values VARCHAR(64) NOT NULL,
  options_values_price DECIMAL(15,4) NOT NULL, price_prefix CHAR(1) NOT NULL);
CREATE TABLE orders_products_download (orders_products_download_id INTEGER PRIMARY KEY AUTOINCREMENT, orders_id INT NOT NULL DEFAULT 0,
  orders_products_id INT NOT NULL DEFAULT 0, orders_products_filename VARCHAR(255) NOT NULL DEFAULT '',
  download_maxdays INT(2) NOT NULL DEFAULT 0, download_count INT(2) NOT NULL DEFAULT 0);
CREATE TABLE orders_total (orders_total_id INTEGER PRIMARY KEY AUTOINCREMENT, orders_id INT NOT NULL, title VARCHAR(255) NOT NULL,
  text VARCHAR(255) NOT NULL, value DECIMAL(15,4) NOT NULL, class VARCHAR(32) NOT NULL, sort_order INT NOT NULL);
CREATE TABLE orders_status_history (orders_status_history_id INTEGER PRIMARY KEY AUTOINCREMENT, orders_id INT NOT NULL,
  orders_status_id INT(5) NOT NULL, date_added DATETIME NOT NULL, customer_notified INT(1) DEFAULT 0, comments TEXT);
CREATE TABLE banktransfer (orders_id INT(11) NOT NULL DEFAULT 0, banktransfer_owner VARCHAR(64), banktransfer_number VARCHAR(24),
  banktransfer_bankname VARCHAR(255), banktransfer_blz VARCHAR(8), banktransfer_status INT(11), banktransfer_prz CHAR(2),
  banktransfer_fax CHAR(2));
CREATE INDEX idx_orders_products ON orders_products (orders_id);
CREATE INDEX idx_orders_products_attributes ON orders_products_attributes (orders_id);
CREATE INDEX idx_orders_total ON orders_total (orders_id);
CREATE INDEX idx_orders_status_history ON orders_status_history (orders_id);
CREATE INDEX idx_banktransfer ON banktransfer (orders_id);
CREATE INDEX idx_address_book ON address_book (customers_id);
)sql";

}  // namespace

QString Shop_Tabellen() {
  QStringList Rechte;
  QString Gruppenpreise;
  for (int i = 0; i < Gruppen; ++i) {
    Rechte << QStringLiteral("group_permission_%1 TINYINT(1) NOT NULL").arg(i);
    Gruppenpreise += QStringLiteral(
                         "CREATE TABLE personal_offers_by_customers_status_%1 (price_id INTEGER PRIMARY KEY "
                         "AUTOINCREMENT, "
                         "products_id INT NOT NULL, quantity INT, personal_offer DECIMAL(15,4));\n")
                         .arg(i);
  }
  return QString::fromUtf8(Listen) +
         QString::fromUtf8(Artikeltabellen).arg(Rechte.join(QStringLiteral(", "))) + Gruppenpreise +
         QString::fromUtf8(Kundentabellen) + QString::fromUtf8(Bestelltabellen);
}

}  // namespace marklink::demo
