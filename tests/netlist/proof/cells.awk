# The cells of an RTLIL design that are taken out, with their parameters: what a comparison of logic does not see.
/^  cell / { kept = $2 ~ /^\\/ && $2 != "\\OWN_STATE"; if (kept) cell = $3 " " $2 }
/^    parameter / && kept { sub(/^    parameter (signed )?/, ""); print cell " " $0 }
/^  end$/ { if (kept) print cell; kept = 0 }
