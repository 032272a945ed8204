// The loop's condition begins with the name, so NOTE reads as NOT and E there.
FOR NOTE=1 TO 2 DO ? 1; ENDDO;          // expect status: 10
