FUNCTION f ( a // the first
    , b /* */
) RETURN a; ENDFUNCTION; // expect status: 40
