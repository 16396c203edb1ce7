#ifndef FAULTYPRODUCTS_H
#define FAULTYPRODUCTS_H

/// Four products with five findings, in this order: an error in DUN10 (with a fix), a note in DUN9 (with a fix), and in
/// DUN2 an error (with a fix), a warning and an error in an option.
inline constexpr char FAULTY_PRODUCTS[] =
        "<products>\n"
        "<product type='DUN10' article_id='1' name='Ten' article_class='book' cover_type='hardcovr' pages='26' "
        "max_pages='154' page_step='4'/>\n"
        "<product type='DUN9' article_id='2' name='Nine' article_class='book' space_magnitude='A4' pages='26' "
        "max_pages='154' page_step='4'/>\n"
        "<product type='VIR1' article_id='3' name='Wall' article_class='normal_calendar' pages='13'/>\n"
        "<product type='DUN2' article_id='4' name='Two' article_class='book' page_binding='spirall' pages='24' "
        "max_pages='73' page_step='2'><forms><form key='alcolor'/></forms></product>\n"
        "</products>\n";

#endif
