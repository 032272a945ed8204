// Bytes travel as base64, and a second write goes behind the first.
? BASE64APPENDTOFILE("AAEC/w==","bytes.bin");    // expect: ИСТИНА
? BASE64FROMFILE("bytes.bin");                   // expect: AAEC/w==
? BASE64APPENDTOFILE("Cg==","bytes.bin");        // expect: ИСТИНА
? BASE64FROMFILE("bytes.bin");                   // expect: AAEC/wo=
BASE64APPENDTOFILE("","none.bin");
? "["+BASE64FROMFILE("none.bin")+"]";            // expect: []
