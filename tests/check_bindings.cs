// Makes calls whose arguments go both ways, finds every function in the library, and prints the
// size and the offsets of every record.
using System;
using System.Reflection;
using System.Runtime.InteropServices;

static class Program
{
    static void Check(string what, long found, long wanted)
    {
        if (found != wanted) throw new Exception(what + " is " + found + " instead of " + wanted);
    }

    static void Main()
    {
        IntPtr node = IntPtr.Zero;
        uint number = 0;
        Check("write", Velkord.ASN1_WriteInteger(70000, ref node), Velkord.VELKORD_OK);
        Check("read", Velkord.ASN1_ReadInteger(node, ref number), Velkord.VELKORD_OK);
        Check("number", number, 70000);
        var read = (Velkord.Anybuf)Marshal.PtrToStructure(node, typeof(Velkord.Anybuf));
        Check("length", read.dataLen, 5);
        Velkord.ASN1_FreeAnybuf(node);

        var key = new Velkord.EccPubkey { x = new byte[32], y = new byte[32] };
        key.x[0] = 1;
        key.y[31] = 2;
        byte[] der = new byte[312];
        Check("encode", Velkord.ASN1_EccPubkey2Der(ref key, der, ref number), Velkord.VELKORD_OK);
        var again = new Velkord.EccPubkey();
        Check("decode", Velkord.ASN1_Der2EccPubkey(der, number, ref again), Velkord.VELKORD_OK);
        Check("bits", again.bits, 256);
        Check("x", again.x[0], 1);
        Check("y", again.y[31], 2);

        foreach (MethodInfo method in typeof(Velkord).GetMethods())
            if ((method.Attributes & MethodAttributes.PinvokeImpl) != 0) Marshal.Prelink(method);
        foreach (Type record in typeof(Velkord).GetNestedTypes())
        {
            Console.WriteLine("{0}. {1}", record.Name, Marshal.SizeOf(record));
            foreach (FieldInfo field in record.GetFields())
                Console.WriteLine("{0}.{1} {2}", record.Name, field.Name,
                                  Marshal.OffsetOf(record, field.Name));
        }
    }
}
