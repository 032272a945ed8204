// Units from 128 to 255 are written as they are but for CP866; what a page does not have is byte 255.
odd = CHR(169)+CHR(255)+"ёЁ"+CHR(8364)+CHR(55357)+CHR(56832);
STRINGAPPENDTOFILE(odd,"w.txt","CP1251");
? BASE64FROMFILE("w.txt");       // expect: qf+4qP///w==
STRINGAPPENDTOFILE(odd,"d.txt","CP866");
? BASE64FROMFILE("d.txt");       // expect: //+4qP///w==
STRINGAPPENDTOFILE(odd,"u.txt");
? BASE64FROMFILE("u.txt");       // expect: qf/RkdCB////
