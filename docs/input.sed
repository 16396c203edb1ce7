# The input of doxygen instead of the file, line by line.
# Names outside of classes need a text only in a file that has one.
1s,^#ifndef,/** @file */ #ifndef,
# A template is described once, not again for each argument.
s/^extern template.*//
s/^(class .*: public RV\w+)<\w+>/\1/
s/(, public RV\w+)<\w+>$/\1/
# Functions need no words that copy and move shared data as everybody expects, that the compiler writes, or that RVEnumWrapper describes for all attributes.
s/^ *RV\w+\((const )?RV\w+ &&?\)( noexcept)? = default;$//
s/^ *RV\w+ &operator=\((const )?RV\w+ &&?\)( noexcept)? = default;$//
s/^ *RV(Catalogue|Check|ProductChange)\w*\((const )?RV(Catalogue|Check|ProductChange)\w* &&?other\)( noexcept)?;$//
s/^ *RV(Catalogue|Check|ProductChange)\w* &operator=\((const )?RV(Catalogue|Check|ProductChange)\w* &&?other\)( noexcept)?;$//
s/^ *void fillTable\(.*\) const override;$//
