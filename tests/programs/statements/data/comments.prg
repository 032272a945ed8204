// nothing but this
   // and this
