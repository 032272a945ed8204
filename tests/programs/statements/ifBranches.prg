FUNCTION size(x)
    IF x<10 THEN
        RETURN "small";
    ELSEIF x<100 THEN
        RETURN "middle";
    ELSEIF x<1000 THEN
        RETURN "large";
    ELSE
        RETURN "huge";
    ENDIF;
ENDFUNCTION;
? size(1);              // expect: small
? size(10);             // expect: middle
? size(100);            // expect: large
? size(1000);           // expect: huge
