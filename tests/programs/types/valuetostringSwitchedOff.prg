// Under its listed name the function cannot be called; under the other it can.
? V1ALUETOSTRING();     // expect match: localClassForTest::classImplementationMethodFunction объект класса [КОНТЕКСТ] по адресу [0x*]
? З1НАЧЕНИЕВСТРОКУ();   // expect match: localClassForTest::classImplementationMethodFunction объект класса [КОНТЕКСТ] по адресу [0x*]
