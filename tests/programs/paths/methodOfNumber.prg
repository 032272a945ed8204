x = 5;
? x.y();                // expect status: 51
// expect match: ERROR в scanStringGetNameTokenAndEvaluete() (variable [y] is not OBJECT ) position: *
