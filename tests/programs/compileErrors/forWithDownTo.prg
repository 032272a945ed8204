FOR i=3 DOWNTO 1 DO ENDDO;      // expect status: 48
